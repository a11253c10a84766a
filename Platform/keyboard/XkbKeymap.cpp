#include "Platform/keyboard/XkbKeymap.h"

#include <xkbcommon/xkbcommon.h>

#include <algorithm>
#include <array>

#include "Foundation/Text.h"
#include "Platform/keyboard/DeadKeys.h"
#include "Platform/keyboard/KeyCodeTable.h"

namespace platform {

namespace {

constexpr std::uint32_t shiftBit = 0x200;
constexpr std::uint32_t optionBit = 0x800;
constexpr std::size_t longestName = 256;
// What types a digit or a sign while Num Lock is on, and moves the cursor otherwise.
constexpr auto keypadCodes = std::to_array<std::uint32_t>({65, 82, 83, 84, 85, 86, 87, 88, 89, 91, 92});

using Context = std::unique_ptr<xkb_context, decltype(&xkb_context_unref)>;
using State = std::unique_ptr<xkb_state, decltype(&xkb_state_unref)>;

xkb_keysym_t shown(xkb_keysym_t keysym) {
  const auto accent = spacingCharacter(keysym);
  return accent ? xkb_utf32_to_keysym(*accent) : keysym;
}

}  // namespace

XkbKeymap::XkbKeymap(xkb_keymap* keymap) : m_keymap(keymap, xkb_keymap_unref) {}

std::optional<XkbKeymap> XkbKeymap::compile(const std::string& layouts, const std::string& variants) {
  const Context context(xkb_context_new(XKB_CONTEXT_NO_ENVIRONMENT_NAMES), xkb_context_unref);
  if (!context) return std::nullopt;
  xkb_context_set_log_level(context.get(), XKB_LOG_LEVEL_CRITICAL);
  const xkb_rule_names names{"evdev", "pc105", layouts.c_str(), variants.c_str(), ""};
  xkb_keymap* keymap = xkb_keymap_new_from_names(context.get(), &names, XKB_KEYMAP_COMPILE_NO_FLAGS);
  return keymap == nullptr ? std::nullopt : std::optional(XkbKeymap(keymap));
}

std::size_t XkbKeymap::layoutCount() const { return xkb_keymap_num_layouts(m_keymap.get()); }

std::optional<std::string> XkbKeymap::layoutName(std::size_t layout) const {
  const char* name = xkb_keymap_layout_get_name(m_keymap.get(), static_cast<xkb_layout_index_t>(layout));
  if (name == nullptr) return std::nullopt;
  const std::string_view text(name);
  if (text.empty() || text.size() > longestName || !foundation::isValidUtf8(text)) return std::nullopt;
  return std::string(text);
}

std::optional<std::string> XkbKeymap::text(std::size_t layout, std::uint32_t virtualKeyCode,
                                           std::uint32_t modifiers) const {
  const auto key = evdevKey(virtualKeyCode);
  const State state(xkb_state_new(m_keymap.get()), xkb_state_unref);
  if (!key || !state || layout >= layoutCount()) return std::nullopt;
  std::uint32_t mask = 0;
  if ((modifiers & shiftBit) != 0) mask |= modifierMask(XKB_MOD_NAME_SHIFT);
  if ((modifiers & optionBit) != 0) mask |= modifierMask("LevelThree");
  // For these keys alone: some layouts put another level on every key by it.
  if (std::ranges::find(keypadCodes, virtualKeyCode) != keypadCodes.end()) mask |= modifierMask("NumLock");
  xkb_state_update_mask(state.get(), mask, 0, 0, static_cast<xkb_layout_index_t>(layout), 0, 0);
  const xkb_keysym_t keysym = shown(xkb_state_key_get_one_sym(state.get(), *key + x11KeycodeOffset));
  std::array<char, 8> utf8{};
  const int size = xkb_keysym_to_utf8(keysym, utf8.data(), utf8.size());
  if (size <= 1) return std::nullopt;
  return std::string(utf8.data(), static_cast<std::size_t>(size - 1));
}

std::uint32_t XkbKeymap::modifierMask(const char* name) const {
  const xkb_mod_index_t index = xkb_keymap_mod_get_index(m_keymap.get(), name);
  return index < 32 ? std::uint32_t{1} << index : 0;
}

}  // namespace platform
