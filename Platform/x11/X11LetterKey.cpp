#include "Platform/x11/X11LetterKey.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>
#include <vector>

#include "Platform/x11/X11Requests.h"
#include "Platform/x11/Xkb.h"

namespace platform {

namespace {

constexpr xcb_keysym_t letterV = 'v';
constexpr xcb_keysym_t capitalV = 'V';

// What a key types: for each group the symbols of its levels.
struct KeySymbols {
  xcb_keycode_t key;
  std::uint8_t groups;
  std::size_t levels;
  std::span<const xcb_keysym_t> symbols;

  [[nodiscard]] xcb_keysym_t symbol(std::uint8_t group, std::size_t level) const {
    const std::size_t place = group * levels + level;
    return group < groups && level < levels && place < symbols.size() ? symbols[place] : xcb_keysym_t{XCB_NO_SYMBOL};
  }
  [[nodiscard]] std::optional<std::uint8_t> groupOfV(std::uint8_t activeGroup) const {
    if (symbol(activeGroup, 0) == letterV) return activeGroup;
    for (std::uint8_t group = 0; group < groups; ++group) {
      if (symbol(group, 0) == letterV) return group;
    }
    return std::nullopt;
  }
};

class Keymap {
 public:
  explicit Keymap(xcb_connection_t* connection) {
    const xcb_setup_t* setup = xcb_get_setup(connection);
    const auto count = static_cast<std::uint8_t>(setup->max_keycode - setup->min_keycode + 1);
    const auto cookie = xcb_xkb_get_map(connection, XCB_XKB_ID_USE_CORE_KBD, 0, XCB_XKB_MAP_PART_KEY_SYMS, 0, 0,
                                        setup->min_keycode, count, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0);
    m_reply.reset(xcb_xkb_get_map_reply(connection, cookie, nullptr));
    if (m_reply && (m_reply->present & XCB_XKB_MAP_PART_KEY_SYMS) != 0) read();
  }

  [[nodiscard]] const std::vector<KeySymbols>& keys() const { return m_keys; }

 private:
  void read() {
    xcb_xkb_get_map_map_t map;
    xcb_xkb_get_map_map_unpack(xcb_xkb_get_map_map(m_reply.get()), m_reply->nTypes, m_reply->nKeySyms,
                               m_reply->nKeyActions, m_reply->totalActions, m_reply->totalKeyBehaviors,
                               m_reply->virtualMods, m_reply->totalKeyExplicit, m_reply->totalModMapKeys,
                               m_reply->totalVModMapKeys, m_reply->present, &map);
    auto key = m_reply->firstKeySym;
    for (auto row = xcb_xkb_get_map_map_syms_rtrn_iterator(m_reply.get(), &map); row.rem > 0;
         xcb_xkb_key_sym_map_next(&row), ++key) {
      m_keys.push_back({key, static_cast<std::uint8_t>(row.data->groupInfo & 0x0FU), row.data->width,
                        std::span(xcb_xkb_key_sym_map_syms(row.data),
                                  static_cast<std::size_t>(xcb_xkb_key_sym_map_syms_length(row.data)))});
    }
  }

  ReplyPointer<xcb_xkb_get_map_reply_t> m_reply;
  std::vector<KeySymbols> m_keys;
};

// In the order of the core protocol: two levels of each group, then the next two.
void addSecondGroup(xcb_connection_t* connection, const KeySymbols& key) {
  const std::array symbols{key.symbol(0, 0), key.symbol(0, 1), letterV, capitalV,
                           key.symbol(0, 2), key.symbol(0, 3), letterV, capitalV};
  xcb_change_keyboard_mapping(connection, 1, key.key, static_cast<std::uint8_t>(symbols.size()), symbols.data());
}

}  // namespace

X11LetterKey keyOfV(xcb_connection_t* connection, xcb_keycode_t preferred, std::uint8_t activeGroup) {
  const Keymap keymap(connection);
  const auto own = std::ranges::find(keymap.keys(), preferred, &KeySymbols::key);
  if (own == keymap.keys().end()) return {preferred, activeGroup};
  if (const auto group = own->groupOfV(activeGroup)) return {preferred, *group};
  for (const KeySymbols& key : keymap.keys()) {
    if (const auto group = key.groupOfV(activeGroup)) return {key.key, *group};
  }
  if (own->groups != 1) return {preferred, activeGroup};
  addSecondGroup(connection, *own);
  return {preferred, 1};
}

}  // namespace platform
