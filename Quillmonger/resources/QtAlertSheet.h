#pragma once

#include <functional>
#include <memory>

#include "Foundation/AlertSheet.h"
#include "Foundation/RunLoop.h"

class QQmlEngine;
class QWindow;

namespace quillmonger {

class AlertWindow;
class Appearance;

/// A question in a window of its own, which belongs to the window that asks, takes its input, and goes with it.
class QtAlertSheet final : public foundation::AlertSheet {
 public:
  struct Surroundings {
    /// One that knows "Quillmonger.Resources"; asked when a question is shown.
    std::function<QQmlEngine&()> engine;
    Appearance& appearance;
    /// The window that asks. Without one the question takes the input of all the program's windows.
    std::function<QWindow*()> parent;
    foundation::RunLoop& runLoop;
  };

  /// All that `surroundings` names outlives this object.
  explicit QtAlertSheet(Surroundings surroundings);
  QtAlertSheet(const QtAlertSheet&) = delete;
  QtAlertSheet& operator=(const QtAlertSheet&) = delete;
  ~QtAlertSheet() override;

  void begin(Content content, Completion completion) override;
  /// Takes the question off the screen, without an answer.
  void close();

 private:
  void show(const Content& content);
  void end(std::size_t button);

  Surroundings m_surroundings;
  Completion m_completion;
  std::unique_ptr<AlertWindow> m_window;
  std::shared_ptr<const bool> m_isAlive = std::make_shared<const bool>(true);
};

}  // namespace quillmonger
