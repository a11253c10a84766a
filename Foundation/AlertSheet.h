#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <iterator>
#include <string>
#include <vector>

namespace foundation {

/// A question on one of the program's windows, which takes no input until it is answered; the program goes on. Main
/// thread.
class AlertSheet {
 public:
  struct Button {
    enum class Role {
      standard,     ///< what Return chooses
      destructive,  ///< shown as one that loses something
      cancel        ///< what Escape and closing choose
    };
    std::string title;
    Role role = Role::standard;

    bool operator==(const Button&) const = default;
  };
  struct Content {
    std::string message;
    std::string informativeText;
    /// At least one.
    std::vector<Button> buttons;

    bool operator==(const Content&) const = default;
  };
  /// Told the place of the chosen button.
  using Completion = std::function<void(std::size_t button)>;

  AlertSheet() = default;
  AlertSheet(const AlertSheet&) = delete;
  AlertSheet& operator=(const AlertSheet&) = delete;
  virtual ~AlertSheet() = default;

  /// Shows the question and returns; the answer comes in a later turn, at most once. While one is up it comes to the
  /// front, and the later question counts as cancelled.
  virtual void begin(Content content, Completion completion) = 0;
};

/// The button that Escape and closing choose: the one with that role, or else the last.
[[nodiscard]] inline std::size_t cancelButton(const AlertSheet::Content& content) {
  const auto found = std::ranges::find(content.buttons, AlertSheet::Button::Role::cancel, &AlertSheet::Button::role);
  const auto place = found == content.buttons.end() ? std::prev(found) : found;
  return static_cast<std::size_t>(std::distance(content.buttons.begin(), place));
}

}  // namespace foundation
