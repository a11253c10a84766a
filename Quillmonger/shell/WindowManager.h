#pragma once

#include <memory>

#include "Foundation/NotificationCenter.h"
#include "Foundation/RunLoop.h"
#include "Quillmonger/history/ClipboardViewModel.h"
#include "Quillmonger/input/BaseEventManager.h"
#include "Quillmonger/search/SearchViewModel.h"
#include "Quillmonger/shell/windows/Application.h"
#include "Quillmonger/shell/windows/Window.h"

namespace quillmonger {

/// Shows and hides the program's windows, and with them the program. Main thread.
class WindowManager final : public BaseEventManager {
 public:
  struct Collaborators {
    ClipboardViewModel& clipboardViewModel;
    SearchViewModel& searchViewModel;
    Window& gettingStartedWindow;
    Window& appWindow;
    Window& settingsWindow;
    Application& application;
    LocalEventMonitoring& eventMonitoring;
    foundation::RunLoop& runLoop;
    foundation::NotificationCenter& notificationCenter;
  };

  /// All collaborators outlive this object.
  explicit WindowManager(const Collaborators& collaborators);

  /// Shows the history if it is hidden, and otherwise hides it.
  void toggleAppWindow();
  /// Shows the history, unfiltered and with its top row selected, in the middle of the screen: the later part in the
  /// next turn of the main queue. Nothing happens while it is up. The settings go: one main window at a time.
  void showAppWindow();
  /// Takes the history off the screen and gives the front back to the application that had it.
  void hideAppWindow();
  /// Shows the settings instead of the history, where the user left them, or in the middle of the screen.
  void showSettingsWindow();
  void showGettingStartedWindow();
  void hideGettingStartedWindow();

  /// Whether a window is up that stays when the user goes to another application.
  [[nodiscard]] bool isAuxiliaryWindowVisible() const;
  /// The program lost the front: a click elsewhere closes the history.
  void applicationDidResignActive();

  bool handleAction(Action action, const KeyEvent& event) override;

 private:
  void presentAppWindow();

  Collaborators m_with;
  std::shared_ptr<const bool> m_isAlive = std::make_shared<const bool>(true);
};

}  // namespace quillmonger
