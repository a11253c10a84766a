#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "Platform/keyboard/XkbKeymap.h"
#include "Sauce/InputSource.h"
#include "Sauce/Key.h"

namespace platform {

/// The layouts of one keymap as input sources. There always is a selected one and one for Latin letters: where the
/// display server tells nothing, or has no Latin layout, the US layout stands in. One thread at a time.
class XkbInputSources final {
 public:
  /// `keymap`: absent when the display server gave none. `identifiers`: one for each of its layouts; when there are too
  /// few, the layouts' own names serve. `selected`: the layout in use; one that isn't there counts as the first.
  XkbInputSources(std::optional<XkbKeymap> keymap, const std::vector<std::string>& identifiers, std::size_t selected);

  void select(std::size_t layout);

  /// In the order of the keymap.
  [[nodiscard]] std::vector<sauce::InputSource> enabled() const;
  [[nodiscard]] sauce::InputSource selected() const;
  [[nodiscard]] sauce::InputSource asciiCapable() const;
  [[nodiscard]] bool hasLayoutData(const sauce::InputSource& source) const { return find(source) != nullptr; }
  [[nodiscard]] std::optional<std::string> translate(const sauce::InputSource& source, sauce::KeyCode keyCode,
                                                     std::uint32_t modifiers) const;

  /// Whether the same sources are enabled, and each types the same without modifiers.
  [[nodiscard]] bool isSameKeyboard(const XkbInputSources& other) const;

 private:
  struct Layout {
    sauce::InputSource source;
    XkbKeymap keymap;
    std::size_t index;
  };

  [[nodiscard]] const Layout* find(const sauce::InputSource& source) const;

  std::vector<Layout> m_layouts;
  /// Stands in for a missing Latin layout, and is not enabled.
  std::optional<Layout> m_standIn;
  std::size_t m_selected = 0;
};

}  // namespace platform
