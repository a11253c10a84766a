#include "Platform/keyboard/XkbInputSources.h"

#include <algorithm>

namespace platform {

namespace {

constexpr auto standInIdentifier = "us";
constexpr sauce::KeyCode lastKeyCode = 127;

std::vector<std::optional<std::string>> texts(const XkbKeymap& keymap, std::size_t layout) {
  std::vector<std::optional<std::string>> result;
  for (sauce::KeyCode keyCode = 0; keyCode <= lastKeyCode; ++keyCode)
    result.push_back(keymap.text(layout, keyCode));
  return result;
}

bool typesLatinLetters(const XkbKeymap& keymap, std::size_t layout) {
  const auto typed = texts(keymap, layout);
  for (char letter = 'a'; letter <= 'z'; ++letter) {
    if (std::ranges::find(typed, std::optional(std::string(1, letter))) == typed.end()) return false;
  }
  return true;
}

enum class Enabled { no, yes };

sauce::InputSource describe(const XkbKeymap& keymap, std::size_t layout, const std::optional<std::string>& identifier,
                            Enabled enabled) {
  const auto name = keymap.layoutName(layout);
  sauce::InputSource source(identifier ? identifier : name);
  source.isASCIICapable = typesLatinLetters(keymap, layout);
  source.isEnableCapable = true;
  source.isSelectCapable = true;
  source.isEnabled = enabled == Enabled::yes;
  source.localizedName = name;
  return source;
}

}  // namespace

XkbInputSources::XkbInputSources(std::optional<XkbKeymap> keymap, const std::vector<std::string>& identifiers,
                                 std::size_t selected) {
  const std::size_t count = keymap ? keymap->layoutCount() : 0;
  for (std::size_t index = 0; index < count; ++index) {
    const auto identifier = identifiers.size() < count ? std::nullopt : std::optional(identifiers[index]);
    m_layouts.push_back({describe(*keymap, index, identifier, Enabled::yes), *keymap, index});
  }
  const bool hasLatin = std::ranges::any_of(m_layouts, [](const Layout& it) { return it.source.isASCIICapable; });
  const auto latin = hasLatin ? std::nullopt : XkbKeymap::compile(standInIdentifier);
  if (latin && m_layouts.empty()) {
    m_layouts.push_back({describe(*latin, 0, standInIdentifier, Enabled::yes), *latin, 0});
  } else if (latin) {
    m_standIn = {describe(*latin, 0, standInIdentifier, Enabled::no), *latin, 0};
  }
  select(selected);
}

void XkbInputSources::select(std::size_t layout) {
  m_selected = layout < m_layouts.size() ? layout : 0;
  for (std::size_t index = 0; index < m_layouts.size(); ++index)
    m_layouts[index].source.isSelected = index == m_selected;
}

std::vector<sauce::InputSource> XkbInputSources::enabled() const {
  std::vector<sauce::InputSource> sources;
  for (const Layout& layout : m_layouts)
    sources.push_back(layout.source);
  return sources;
}

sauce::InputSource XkbInputSources::selected() const {
  // Without a keymap and without the system's layout files there still is a source, of which nothing is known.
  return m_layouts.empty() ? sauce::InputSource(standInIdentifier) : m_layouts[m_selected].source;
}

sauce::InputSource XkbInputSources::asciiCapable() const {
  if (selected().isASCIICapable) return selected();
  const auto first = std::ranges::find_if(m_layouts, [](const Layout& it) { return it.source.isASCIICapable; });
  if (first != m_layouts.end()) return first->source;
  return m_standIn ? m_standIn->source : selected();
}

const XkbInputSources::Layout* XkbInputSources::find(const sauce::InputSource& source) const {
  const auto found = std::ranges::find(m_layouts, source, &Layout::source);
  if (found != m_layouts.end()) return &*found;
  return m_standIn && m_standIn->source == source ? &*m_standIn : nullptr;
}

std::optional<std::string> XkbInputSources::translate(const sauce::InputSource& source, sauce::KeyCode keyCode,
                                                      std::uint32_t modifiers) const {
  const Layout* layout = find(source);
  return layout == nullptr ? std::nullopt : layout->keymap.text(layout->index, keyCode, modifiers);
}

bool XkbInputSources::isSameKeyboard(const XkbInputSources& other) const {
  return std::ranges::equal(m_layouts, other.m_layouts, [](const Layout& one, const Layout& another) {
    return one.source == another.source && one.source.localizedName == another.source.localizedName &&
           texts(one.keymap, one.index) == texts(another.keymap, another.index);
  });
}

}  // namespace platform
