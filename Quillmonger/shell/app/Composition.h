#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "Defaults/Defaults.h"
#include "Defaults/FileUserDefaults.h"
#include "Foundation/NotificationCenter.h"
#include "KeyboardShortcuts/KeyboardShortcuts.h"
#include "LaunchAtLogin/LaunchAtLogin.h"
#include "Platform/dbus/StatusNotifierBar.h"
#include "Platform/desktopshortcuts/DesktopShortcuts.h"
#include "Platform/freedesktop/AutostartEntry.h"
#include "Platform/freedesktop/CommandSocket.h"
#include "Platform/freedesktop/DesktopApplicationBundles.h"
#include "Platform/freedesktop/DesktopApplicationNaming.h"
#include "Platform/freedesktop/DesktopBundleProvider.h"
#include "Platform/freedesktop/DesktopEntries.h"
#include "Platform/freedesktop/DesktopInstalledApplications.h"
#include "Platform/freedesktop/XdgFolders.h"
#include "Platform/portal/PortalPreferences.h"
#include "Platform/qt/QtApplication.h"
#include "Platform/qt/QtBackgroundQueue.h"
#include "Platform/qt/QtLocalEventMonitor.h"
#include "Platform/qt/QtPictureReading.h"
#include "Platform/qt/QtRecordedEvents.h"
#include "Platform/qt/QtRunLoop.h"
#include "Platform/x11/X11HotKeys.h"
#include "Platform/x11/X11InputSources.h"
#include "Platform/x11/X11PasteKeys.h"
#include "Platform/x11/X11Pasteboard.h"
#include "Platform/x11/X11PostEventAccess.h"
#include "Platform/x11/X11WindowSystem.h"
#include "Quillmonger/capture/ContextProvider.h"
#include "Quillmonger/shell/DesktopMotion.h"
#include "Quillmonger/shell/DialogManager.h"
#include "Quillmonger/shell/OutsideOpening.h"
#include "Quillmonger/shell/PermissionsManager.h"
#include "Quillmonger/shell/Quillmonger.h"
#include "Quillmonger/shell/app/Updates.h"
#include "Quillmonger/shell/app/Views.h"
#include "Quillmonger/shell/command/CommandLine.h"
#include "Sauce/Sauce.h"

namespace quillmonger {

/// The whole object graph of the running program: the adapters of this desktop, the logic on them, and the views. The
/// only place that knows all three. Made on the main thread after the application object, and gone before it.
class Composition final {
 public:
  /// `arguments`: the program's, without its name. Opens the store and loads the history. A display without what the
  /// program needs of it stops the process with a message that says so.
  Composition(const platform::XdgFolders& folders, const std::vector<std::string>& arguments);
  Composition(const Composition&) = delete;
  Composition& operator=(const Composition&) = delete;
  ~Composition();

  /// Launching has finished: starts, says what is in use, and takes commands from then on.
  void launch(const std::vector<std::string>& arguments);
  /// Brings everything to the disk. The last call.
  void saveChanges();
  void quit() { m_root.quitApp(); }

 private:
  [[nodiscard]] bool isTerminal(const std::string& windowClass) const;
  [[nodiscard]] std::optional<std::string> iconOf(const std::string& path) const;
  void copyText(const std::string& text);
  [[nodiscard]] CommandLine::Operations commandOperations();
  void listenToCommands();
  void tellServices() const;

  platform::XdgFolders m_folders;
  // Before the services whose threads ask it, so that they end first.
  platform::DesktopEntries m_desktopEntries;
  platform::QtRunLoop m_runLoop;
  foundation::NotificationCenter m_notificationCenter;
  defaults::FileUserDefaults m_userDefaults;
  defaults::Defaults m_defaults;

  std::unique_ptr<platform::X11WindowSystem> m_windowSystem;
  std::unique_ptr<platform::X11HotKeys> m_hotKeys;
  std::unique_ptr<platform::X11Pasteboard> m_pasteboard;
  std::unique_ptr<platform::X11PasteKeys> m_pasteKeys;
  std::unique_ptr<platform::X11InputSources> m_inputSources;
  platform::X11PostEventAccess m_postEventAccess;
  platform::DesktopShortcuts m_desktopShortcuts;
  sauce::Sauce m_sauce;
  platform::DesktopApplicationBundles m_applicationBundles;
  platform::DesktopApplicationNaming m_applicationNaming;
  platform::QtPictureReading m_pictureReading;
  platform::DesktopBundleProvider m_bundleProvider;
  platform::DesktopInstalledApplications m_installedApplications;
  platform::QtLocalEventMonitor m_eventMonitor;
  platform::QtRecordedEvents m_recordedEvents;
  platform::QtApplication m_application;
  // After all that its work asks, which may still go on when the root has gone.
  platform::QtBackgroundQueue m_backgroundQueue;
  platform::PortalPreferences m_desktopPreferences;
  DesktopMotion m_motion;
  Views m_views;
  OutsideOpening m_opening;
  platform::StatusNotifierBar m_statusBar;
  Updates m_updates;
  platform::AutostartEntry m_autostartEntry;
  launchatlogin::LaunchAtLogin m_launchAtLogin;

  DialogManager m_dialogManager;
  PermissionsManager m_permissionsManager;
  ContextProvider m_contextProvider;
  keyboardshortcuts::KeyboardShortcuts m_shortcuts;
  Quillmonger m_root;

  CommandLine m_commandLine;
  std::unique_ptr<platform::CommandSocket> m_commandSocket;
  foundation::Subscription m_resigning;
};

}  // namespace quillmonger
