#include "Platform/x11/X11Modifiers.h"

#include <X11/keysym.h>
#include <xcb/xcb_keysyms.h>

#include <cstdlib>
#include <memory>
#include <span>

#include "Platform/keyboard/KeyCodeTable.h"

namespace platform {

namespace {

constexpr xcb_keycode_t usualLeftControl = 29 + x11KeycodeOffset;
constexpr xcb_keycode_t usualLeftShift = 42 + x11KeycodeOffset;
constexpr std::uint32_t commandBit = 0x100;
constexpr std::uint32_t shiftBit = 0x200;
constexpr std::uint32_t optionBit = 0x800;
constexpr std::uint32_t controlBit = 0x1000;
constexpr int modifierCount = 8;
constexpr int columns = 4;  // of the keyboard mapping, where a modifier key's symbol can stand

using Symbols = std::unique_ptr<xcb_key_symbols_t, decltype(&xcb_key_symbols_free)>;

bool types(const Symbols& symbols, xcb_keycode_t key, xcb_keysym_t wanted) {
  for (int column = 0; column < columns; ++column) {
    if (xcb_key_symbols_get_keysym(symbols.get(), key, column) == wanted) return true;
  }
  return false;
}

}  // namespace

X11Modifiers::X11Modifiers(xcb_connection_t* connection) : m_controlKey(usualLeftControl), m_shiftKey(usualLeftShift) {
  const Symbols symbols(xcb_key_symbols_alloc(connection), &xcb_key_symbols_free);
  const std::unique_ptr<xcb_get_modifier_mapping_reply_t, decltype(&std::free)> reply(
      xcb_get_modifier_mapping_reply(connection, xcb_get_modifier_mapping(connection), nullptr), &std::free);
  if (!symbols || !reply) return;
  const std::size_t keysPerModifier = reply->keycodes_per_modifier;
  const std::span keys(xcb_get_modifier_mapping_keycodes(reply.get()), modifierCount * keysPerModifier);
  for (std::size_t index = 0; index < keys.size(); ++index) {
    if (keys[index] == 0) continue;
    const auto bit = static_cast<std::uint16_t>(1U << (index / keysPerModifier));
    if (types(symbols, keys[index], XK_Super_L)) m_super = bit;
    if (types(symbols, keys[index], XK_Alt_L)) m_alt = bit;
    if (types(symbols, keys[index], XK_Num_Lock) || types(symbols, keys[index], XK_Scroll_Lock)) m_locks |= bit;
    if (types(symbols, keys[index], XK_Control_L)) m_controlKey = keys[index];
    if (types(symbols, keys[index], XK_Shift_L)) m_shiftKey = keys[index];
  }
  for (std::size_t index = 0; index < keys.size(); ++index) {
    const bool isLock = ((m_locks >> (index / keysPerModifier)) & 1U) != 0;
    if (keys[index] != 0 && !isLock) m_chordKeys.push_back(keys[index]);
  }
}

std::array<std::pair<std::uint32_t, std::uint16_t>, 4> X11Modifiers::bits() const {
  return {
      {{commandBit, m_super}, {shiftBit, XCB_MOD_MASK_SHIFT}, {optionBit, m_alt}, {controlBit, XCB_MOD_MASK_CONTROL}}};
}

std::uint16_t X11Modifiers::state(std::uint32_t serviceModifiers) const {
  unsigned state = 0;
  for (const auto& [service, real] : bits())
    state |= (serviceModifiers & service) != 0 ? real : 0U;
  return static_cast<std::uint16_t>(state);
}

std::uint32_t X11Modifiers::serviceModifiers(std::uint16_t state) const {
  std::uint32_t modifiers = 0;
  for (const auto& [service, real] : bits())
    modifiers |= (state & real) != 0 ? service : 0U;
  return modifiers;
}

std::vector<std::uint16_t> X11Modifiers::lockCombinations() const {
  std::vector<std::uint16_t> combinations;
  for (unsigned bits = 0; bits <= m_locks; ++bits) {
    if ((bits & ~unsigned{m_locks}) == 0) combinations.push_back(static_cast<std::uint16_t>(bits));
  }
  return combinations;
}

}  // namespace platform
