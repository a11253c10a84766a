#pragma once

#include <string>
#include <vector>

namespace quillmonger {

/// A question that the user has to answer before anything goes on. Main thread.
class Alert {
 public:
  struct Content {
    std::string message;
    std::string informativeText;
    /// The first is the default one, and the second what closing counts as. One or two.
    std::vector<std::string> buttons;
  };
  static constexpr int firstButton = 1000;
  static constexpr int secondButton = 1001;

  Alert() = default;
  Alert(const Alert&) = delete;
  Alert& operator=(const Alert&) = delete;
  virtual ~Alert() = default;

  /// Shows the alert and returns when the user has answered it: 1000 for the first button, 1001 for the second.
  virtual int runModal(const Content& content) = 0;
};

}  // namespace quillmonger
