#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

struct xkb_keymap;

namespace platform {

/// What each key of a keyboard types, in each of the layouts that its user switches between. Immutable; one thread at a
/// time.
class XkbKeymap final {
 public:
  /// Takes the caller's only reference.
  explicit XkbKeymap(xkb_keymap* keymap);
  /// Of layouts that the system knows by name, as "us,ru" with the variants "dvorak,". Absent when it knows none such.
  [[nodiscard]] static std::optional<XkbKeymap> compile(const std::string& layouts, const std::string& variants = {});

  [[nodiscard]] std::size_t layoutCount() const;
  /// As the user reads it; absent when it has none that is text.
  [[nodiscard]] std::optional<std::string> layoutName(std::size_t layout) const;
  /// What the key at a virtual key code types, in UTF-8: the accent alone for a dead key, and the digit or sign for one
  /// of the keypad, whether or not Num Lock is on. `modifiers`: service bits; shift counts, and option for the third
  /// level. Absent when the key types nothing.
  [[nodiscard]] std::optional<std::string> text(std::size_t layout, std::uint32_t virtualKeyCode,
                                                std::uint32_t modifiers = 0) const;

 private:
  [[nodiscard]] std::uint32_t modifierMask(const char* name) const;

  std::shared_ptr<xkb_keymap> m_keymap;
};

}  // namespace platform
