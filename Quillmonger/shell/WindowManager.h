#pragma once

#include <memory>

#include "Foundation/NotificationCenter.h"
#include "Foundation/RunLoop.h"
#include "Quillmonger/history/ClipboardViewModel.h"
#include "Quillmonger/input/BaseEventManager.h"
#include "Quillmonger/preview/window/PreviewWindow.h"
#include "Quillmonger/search/SearchViewModel.h"
#include "Quillmonger/shell/AppStoreReviewManager.h"
#include "Quillmonger/shell/windows/Application.h"
#include "Quillmonger/shell/windows/MotionPreference.h"
#include "Quillmonger/shell/windows/Panel.h"
#include "Quillmonger/shell/windows/SettingsWindowController.h"
#include "Quillmonger/shell/windows/Window.h"
#include "Quillmonger/shell/windows/WindowVisibility.h"

namespace quillmonger {

/// Shows and hides the program's windows, and with them the program. Main thread.
class WindowManager final : public BaseEventManager {
 public:
  struct Collaborators {
    ClipboardViewModel& clipboardViewModel;
    SearchViewModel& searchViewModel;
    Window& gettingStartedWindow;
    Window& appWindow;
    SettingsWindowController& settingsWindowController;
    Window& aboutWindow;
    /// The updater shows and hides it.
    const Window& updateWindow;
    Panel& previewPanel;
    /// Handed on to what the About window shows.
    const AppStoreReviewManager& reviewManager;
    const MotionPreference& motion;
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
  /// Dismisses the history: takes it off the screen with its preview, and gives the front back to the application that
  /// had it.
  void hideAppWindow();
  enum class SettingsPane { lastShown, appearance };
  /// Shows the settings instead of the history.
  void showSettingsWindow(SettingsPane pane = SettingsPane::lastShown);
  /// Shows the window that tells what this program is, in the middle of the screen, instead of the history.
  void showAboutWindow();
  void showGettingStartedWindow();
  void hideGettingStartedWindow();
  /// Hides the preview if it is up, and otherwise shows it beside the history if that is up.
  void togglePreviewWindow();
  /// Shows the preview beside the history, unless it is up already. On a screen too narrow for both, the history gives
  /// way to the left.
  void showPreviewWindow();

  /// Whether the preview is on the screen.
  [[nodiscard]] WindowVisibility& previewVisibility() { return m_previewVisibility; }
  [[nodiscard]] const AppStoreReviewManager& reviewManager() const { return m_with.reviewManager; }
  [[nodiscard]] bool isAppWindowVisible() const { return m_with.appWindow.isVisible(); }
  /// Whether a window is up that stays when the user goes to another application.
  [[nodiscard]] bool isAuxiliaryWindowVisible() const;
  /// The program lost the front: a click elsewhere closes the history.
  void applicationDidResignActive();

  bool handleAction(Action action, const KeyEvent& event) override;

 private:
  void presentAppWindow();
  void orderHistoryOut();

  Collaborators m_with;
  WindowVisibility m_previewVisibility;
  PreviewWindow m_previewWindow;
  std::shared_ptr<const bool> m_isAlive = std::make_shared<const bool>(true);
};

}  // namespace quillmonger
