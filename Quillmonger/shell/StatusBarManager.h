#pragma once

#include <functional>
#include <memory>

#include "Defaults/Defaults.h"
#include "Foundation/NotificationCenter.h"
#include "Foundation/Published.h"
#include "Foundation/RunLoop.h"
#include "Foundation/Subscription.h"
#include "Foundation/TextLookup.h"
#include "Quillmonger/shell/StatusItem.h"
#include "Quillmonger/shell/windows/Application.h"
#include "Quillmonger/shell/windows/MotionPreference.h"
#include "Quillmonger/update/Updater.h"

namespace quillmonger {

/// The program's status item: its menu, incognito mode, and the bounce of its picture at a copy. Main thread.
class StatusBarManager final {
 public:
  /// What the menu does with the windows.
  struct Windows {
    std::function<void()> showAboutWindow;
    std::function<void()> toggleAppWindow;
    /// On the pane last shown.
    std::function<void()> showSettingsWindow;
    std::function<void()> hideAppWindow;
  };
  struct Collaborators {
    Windows windows;
    Updater& updater;
    StatusBar& statusBar;
    Application& application;
    foundation::TextLookup texts;
    const MotionPreference& motion;
    foundation::RunLoop& runLoop;
    foundation::NotificationCenter& notificationCenter;
    defaults::Defaults& defaults;
  };

  /// All collaborators outlive this object. There is no item yet.
  explicit StatusBarManager(const Collaborators& collaborators);

  /// Builds the menu and the item, once.
  void setup();

  // The menu's actions, from `setup` on.
  void toggleIncognito();
  /// Takes the history off the screen, and asks the updater.
  void checkForUpdates();
  void quitApp();

  /// Lets the picture fall into its place, anew if it is falling. From `setup` on.
  void animateStatusBarItem();

 private:
  [[nodiscard]] StatusMenu makeMenu();
  /// Stops the process before `setup`.
  [[nodiscard]] StatusItem& item();
  void showMenu();
  void setIcon();
  void showNextFrame();

  Collaborators m_with;
  foundation::Published<bool> m_canCheckForUpdates{false};
  std::unique_ptr<StatusItem> m_statusBarItem;
  StatusMenu m_statusBarMenu;
  int m_frame = 0;
  foundation::Subscription m_fallAndBounce;
  foundation::Subscription m_updaterBinding;
  foundation::Subscription m_updateEntry;
  foundation::Subscription m_itemCopied;
};

}  // namespace quillmonger
