#include "Platform/desktopshortcuts/Accelerator.h"

#include <glib.h>
#include <xkbcommon/xkbcommon.h>

#include <algorithm>
#include <array>
#include <string>

#include "Foundation/Text.h"

namespace platform {

namespace {

constexpr std::size_t longestText = 128;

struct Modifier {
  std::string_view name;
  std::uint32_t serviceBit;
};

// The single letters are openbox's.
constexpr auto modifierNames = std::to_array<Modifier>({{"super", 0x100},
                                                        {"mod4", 0x100},
                                                        {"w", 0x100},
                                                        {"shift", 0x200},
                                                        {"shft", 0x200},
                                                        {"s", 0x200},
                                                        {"alt", 0x800},
                                                        {"mod1", 0x800},
                                                        {"a", 0x800},
                                                        {"control", 0x1000},
                                                        {"ctrl", 0x1000},
                                                        {"ctl", 0x1000},
                                                        {"primary", 0x1000},
                                                        {"c", 0x1000}});

struct KeyName {
  std::string_view qt;
  std::string_view keysym;
};

// Where Qt's name of a key is not the keysym's.
constexpr auto qtKeyNames = std::to_array<KeyName>({{"Esc", "Escape"},
                                                    {"PgUp", "Prior"},
                                                    {"PgDown", "Next"},
                                                    {"Ins", "Insert"},
                                                    {"Del", "Delete"},
                                                    {"Enter", "KP_Enter"},
                                                    {"Backtab", "ISO_Left_Tab"}});

bool isOff(std::string_view text) { return text.empty() || text == "disabled" || text == "none"; }

void add(std::optional<std::uint32_t>& modifiers, std::string_view name) {
  const auto found = std::ranges::find(modifierNames, foundation::lowercased(name), &Modifier::name);
  if (found == modifierNames.end()) modifiers.reset();
  if (modifiers) *modifiers |= found->serviceBit;
}

// A number is a key code of the display server, which the library would take for a keysym.
std::uint32_t keysymNamed(std::string_view name) {
  if (name.starts_with("0x")) return XKB_KEY_NoSymbol;
  return xkb_keysym_to_lower(xkb_keysym_from_name(std::string(name).c_str(), XKB_KEYSYM_CASE_INSENSITIVE));
}

std::uint32_t qtKeysym(std::string_view name) {
  const gunichar character = g_utf8_get_char_validated(name.data(), static_cast<gssize>(name.size()));
  const bool isOneCharacter = !name.empty() && g_unichar_validate(character) != 0 &&
                              static_cast<std::size_t>(g_unichar_to_utf8(character, nullptr)) == name.size();
  if (isOneCharacter) return xkb_keysym_to_lower(xkb_utf32_to_keysym(character));
  const auto named = std::ranges::find(qtKeyNames, name, &KeyName::qt);
  return keysymNamed(named == qtKeyNames.end() ? name : named->keysym);
}

}  // namespace

std::optional<Accelerator> gtkAccelerator(std::string_view text) {
  if (isOff(text)) return std::nullopt;
  if (text.size() > longestText) return Accelerator{};
  std::optional<std::uint32_t> modifiers = 0;
  while (text.starts_with('<')) {
    const auto end = text.find('>');
    if (end == std::string_view::npos) return Accelerator{};
    add(modifiers, text.substr(1, end - 1));
    text.remove_prefix(end + 1);
  }
  return Accelerator{text == "Above_Tab" ? keysymAboveTab : keysymNamed(text), modifiers};
}

std::optional<Accelerator> qtAccelerator(std::string_view text) {
  if (isOff(text)) return std::nullopt;
  if (text.size() > longestText) return Accelerator{};
  std::optional<std::uint32_t> modifiers = 0;
  bool isKeypad = false;
  // From the second character on: the key itself can be a plus sign.
  for (auto end = text.find('+', 1); end != std::string_view::npos; end = text.find('+', 1)) {
    const auto name = text.substr(0, end);
    if (name == "Num") {
      isKeypad = true;
    } else {
      add(modifiers, name == "Meta" ? "Super" : name);
    }
    text.remove_prefix(end + 1);
  }
  return Accelerator{isKeypad ? keysymNamed("KP_" + std::string(text)) : qtKeysym(text), modifiers};
}

std::optional<Accelerator> openboxAccelerator(std::string_view text) {
  if (isOff(text)) return std::nullopt;
  if (text.size() > longestText) return Accelerator{};
  std::optional<std::uint32_t> modifiers = 0;
  for (auto end = text.find('-'); end != std::string_view::npos; end = text.find('-')) {
    add(modifiers, text.substr(0, end));
    text.remove_prefix(end + 1);
  }
  return Accelerator{keysymNamed(text), modifiers};
}

}  // namespace platform
