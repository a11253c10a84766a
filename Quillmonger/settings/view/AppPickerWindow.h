#pragma once

#include <functional>
#include <memory>
#include <string>

#include "Quillmonger/resources/Appearance.h"
#include "Quillmonger/settings/panes/AppPicker.h"
#include "Quillmonger/settings/panes/AppPickerViewModel.h"

class QQmlEngine;
class QWindow;

namespace quillmonger {

/// A window with a list of the installed applications, for as long as the user chooses. It belongs to the window that
/// asks, takes its input, and goes with it.
class AppPickerWindow final : public AppPicker {
 public:
  struct Surroundings {
    AppPickerViewModel::Collaborators applications;
    Appearance& appearance;
    /// One that knows the types of "Quillmonger.Settings".
    std::function<QQmlEngine&()> engine;
    /// The window that asks.
    std::function<QWindow*()> parent;
    /// What a paste into the search field pastes; waits for nobody.
    std::function<std::string()> clipboardText;
  };

  /// All that `surroundings` names outlives this object.
  explicit AppPickerWindow(Surroundings surroundings);
  AppPickerWindow(const AppPickerWindow&) = delete;
  AppPickerWindow& operator=(const AppPickerWindow&) = delete;
  ~AppPickerWindow() override;

  /// While the window is up it only comes to the front, and nothing is chosen for the later call.
  void pickApplication(Completion completion) override;
  /// Takes the window off the screen, without an answer.
  void close();

 private:
  class Session;
  void end(const std::optional<foundation::Url>& location);

  Surroundings m_surroundings;
  std::unique_ptr<Session> m_session;
  std::shared_ptr<const bool> m_isAlive = std::make_shared<const bool>(true);
};

}  // namespace quillmonger
