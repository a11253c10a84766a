#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "Foundation/BackgroundQueue.h"
#include "Foundation/NotificationCenter.h"
#include "Foundation/RunLoop.h"
#include "Foundation/Subscription.h"
#include "Foundation/Url.h"
#include "KeyboardShortcuts/KeyboardShortcuts.h"
#include "Quillmonger/capture/ApplicationBundles.h"
#include "Quillmonger/capture/BundleProviding.h"
#include "Quillmonger/capture/ClipboardManager.h"
#include "Quillmonger/capture/IgnoredApps.h"
#include "Quillmonger/capture/Pasteboard.h"
#include "Quillmonger/capture/StoreContext.h"
#include "Quillmonger/history/ApplicationNaming.h"
#include "Quillmonger/history/ClipboardViewModel.h"
#include "Quillmonger/input/LocalEventMonitoring.h"
#include "Quillmonger/input/PasteInjection.h"
#include "Quillmonger/input/PasteKeyPosting.h"
#include "Quillmonger/search/SearchManager.h"
#include "Quillmonger/search/SearchViewModel.h"
#include "Quillmonger/settings/panes/AppPicker.h"
#include "Quillmonger/settings/panes/IgnoreAppsViewModel.h"
#include "Quillmonger/shell/AppStoreReviewManager.h"
#include "Quillmonger/shell/AudioManager.h"
#include "Quillmonger/shell/AudioPlayer.h"
#include "Quillmonger/shell/RunningHistory.h"
#include "Quillmonger/shell/StatusBarManager.h"
#include "Quillmonger/shell/StatusItem.h"
#include "Quillmonger/shell/WindowManager.h"
#include "Quillmonger/shell/windows/Application.h"
#include "Quillmonger/shell/windows/MotionPreference.h"
#include "Quillmonger/shell/windows/Panel.h"
#include "Quillmonger/shell/windows/SettingsWindowController.h"
#include "Quillmonger/shell/windows/Window.h"
#include "Quillmonger/update/Updater.h"

namespace quillmonger {

/// The root of the program: builds and owns the logic's long-lived objects, decides what a start consists of, and
/// saves at the end. Main thread.
class Quillmonger final {
 public:
  /// Everything that the logic needs of the desktop. All outlive the root.
  struct Platform {
    foundation::RunLoop& runLoop;
    foundation::BackgroundQueue& backgroundQueue;
    foundation::NotificationCenter& notificationCenter;
    defaults::Defaults& defaults;
    keyboardshortcuts::KeyboardShortcuts& shortcuts;
    StoreContext& context;
    Pasteboard& pasteboard;
    BundleProviding& bundleProvider;
    const ApplicationBundles& applicationBundles;
    const ApplicationNaming& applicationNaming;
    const PictureReading& pictureReading;
    foundation::TextLookup texts;
    PermissionsManaging& permissionsManager;
    const sauce::Sauce& sauce;
    PasteKeyPosting& pasteKeys;
    LocalEventMonitoring& eventMonitoring;
    Application& application;
    Window& gettingStartedWindow;
    Window& appWindow;
    SettingsWindowController& settingsWindowController;
    Window& aboutWindow;
    const Window& updateWindow;
    Panel& previewPanel;
    const MotionPreference& motion;
    AppPicker& appPicker;
    StatusBar& statusBar;
    Updater& updater;
    foundation::Url appStoreDeepLink;
    ResourceLookup resources;
    AudioPlayerFactory makeAudioPlayer;
  };

  /// Loads the history; starts nothing. The windows' content is made afterwards, from what this object owns.
  explicit Quillmonger(const Platform& platform);
  Quillmonger(const Quillmonger&) = delete;
  Quillmonger& operator=(const Quillmonger&) = delete;
  ~Quillmonger() = default;

  [[nodiscard]] ClipboardManager& clipboardManager() { return m_clipboardManager; }
  [[nodiscard]] const std::shared_ptr<const OculetManager>& oculetManager() const { return m_oculetManager; }
  [[nodiscard]] ClipboardViewModel& clipboardViewModel() { return m_clipboardViewModel; }
  /// The history for the command line.
  [[nodiscard]] CommandedHistory& commandedHistory() { return m_commandedHistory; }
  [[nodiscard]] SearchViewModel& searchViewModel() { return m_searchViewModel; }
  /// Made when it is first asked for: it reads the applications that it lists.
  [[nodiscard]] IgnoreAppsViewModel& ignoreAppsViewModel();
  [[nodiscard]] PermissionsManaging& permissionsManager() { return m_platform.permissionsManager; }
  /// The program's own menu, with its chords.
  [[nodiscard]] std::vector<keyboardshortcuts::MenuItem> mainMenu() { return m_statusBarManager.mainMenu(); }
  [[nodiscard]] WindowManager& windowManager() { return m_windowManager; }

  /// The program has been launched: shows the Getting Started guide while the setting `firstLaunch` is on; otherwise
  /// shows the status item and starts to watch the clipboard.
  void start();
  /// The guide's last step: the normal start, and the history on the screen. Nothing happens once the normal start has
  /// taken place.
  void finishGettingStarted();
  /// The user asks for the program: shows the history, or the guide until the user has been through it.
  void show();
  /// The same, but hides the history if it is showing.
  void toggle();
  /// Shows the settings, also before the user has been through the guide.
  void showSettings();
  /// Shows what this program is, also before the user has been through the guide.
  void showAbout();
  /// The program lost the front.
  void applicationDidResignActive();
  /// The program is about to end: brings the store to the disk.
  void saveChanges();
  void quitApp();
  /// URLs that the desktop handed to the program. None has an effect; each is told on standard output.
  void openURLs(const std::vector<std::string>& urls);

 private:
  void startGettingStarted();
  void startNormally();
  [[nodiscard]] StatusBarManager::Windows windowsOfStatusBar();
  void pasteSucceeded();

  Platform m_platform;
  std::shared_ptr<const OculetManager> m_oculetManager;
  PasteInjection m_pasteInjection;
  IgnoredApps m_ignoredApps;
  ClipboardManager m_clipboardManager;
  AppStoreReviewManager m_reviewManager;
  SearchViewModel m_searchViewModel;
  SearchManager<ClipboardItemViewModel> m_searchManager;
  ClipboardViewModel m_clipboardViewModel;
  RunningHistory m_commandedHistory;
  std::optional<IgnoreAppsViewModel> m_ignoreAppsViewModel;
  WindowManager m_windowManager;
  StatusBarManager m_statusBarManager;
  AudioManager m_audioManager;
  bool m_isStartedNormally = false;
  std::vector<foundation::Subscription> m_subscriptions;
};

}  // namespace quillmonger
