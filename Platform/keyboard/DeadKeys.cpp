#include "Platform/keyboard/DeadKeys.h"

#include <xkbcommon/xkbcommon-keysyms.h>

#include <algorithm>
#include <array>

namespace platform {

namespace {

struct DeadKey {
  std::uint32_t keysym;
  char32_t character;
};

constexpr auto deadKeys = std::to_array<DeadKey>({{XKB_KEY_dead_grave, U'`'},
                                                  {XKB_KEY_dead_acute, U'\u00B4'},
                                                  {XKB_KEY_dead_circumflex, U'^'},
                                                  {XKB_KEY_dead_tilde, U'~'},
                                                  {XKB_KEY_dead_macron, U'\u00AF'},
                                                  {XKB_KEY_dead_breve, U'\u02D8'},
                                                  {XKB_KEY_dead_abovedot, U'\u02D9'},
                                                  {XKB_KEY_dead_diaeresis, U'\u00A8'},
                                                  {XKB_KEY_dead_abovering, U'\u02DA'},
                                                  {XKB_KEY_dead_doubleacute, U'\u02DD'},
                                                  {XKB_KEY_dead_caron, U'\u02C7'},
                                                  {XKB_KEY_dead_cedilla, U'\u00B8'},
                                                  {XKB_KEY_dead_ogonek, U'\u02DB'},
                                                  {XKB_KEY_dead_iota, U'\u037A'},
                                                  {XKB_KEY_dead_voiced_sound, U'\u309B'},
                                                  {XKB_KEY_dead_semivoiced_sound, U'\u309C'},
                                                  {XKB_KEY_dead_stroke, U'/'},
                                                  {XKB_KEY_dead_abovecomma, U'\u1FBF'},
                                                  {XKB_KEY_dead_abovereversedcomma, U'\u1FFE'},
                                                  {XKB_KEY_dead_doublegrave, U'\u02F5'},
                                                  {XKB_KEY_dead_belowcomma, U','},
                                                  {XKB_KEY_dead_currency, U'\u00A4'},
                                                  {XKB_KEY_dead_greek, U'\u00B5'},
                                                  {XKB_KEY_dead_lowline, U'_'}});

}  // namespace

std::optional<char32_t> spacingCharacter(std::uint32_t keysym) {
  const auto found = std::ranges::find(deadKeys, keysym, &DeadKey::keysym);
  return found == deadKeys.end() ? std::nullopt : std::optional(found->character);
}

}  // namespace platform
