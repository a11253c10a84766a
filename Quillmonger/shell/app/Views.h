#pragma once

#include <QQmlEngine>
#include <functional>
#include <memory>
#include <string>

#include "Defaults/Defaults.h"
#include "KeyboardShortcuts/ShortcutText.h"
#include "Platform/qt/QtQuickWindow.h"
#include "Quillmonger/history/view/ClipboardViewAdapter.h"
#include "Quillmonger/history/view/HistorySettings.h"
#include "Quillmonger/history/view/ImageCache.h"
#include "Quillmonger/resources/Appearance.h"
#include "Quillmonger/search/view/SearchBarModel.h"
#include "Quillmonger/settings/panes/AppPickerViewModel.h"
#include "Quillmonger/settings/view/AboutModel.h"
#include "Quillmonger/settings/view/AppPickerWindow.h"
#include "Quillmonger/shell/DialogManager.h"
#include "Quillmonger/shell/Quillmonger.h"
#include "Quillmonger/shell/app/GuideFeed.h"
#include "Quillmonger/shell/app/PanedSettings.h"
#include "Quillmonger/shell/app/PreviewFeed.h"
#include "Quillmonger/shell/view/QtAlert.h"
#include "Quillmonger/shell/windows/MotionPreference.h"
#include "Quillmonger/shell/windows/WindowSystem.h"
#include "Quillmonger/update/view/UpdateModel.h"

namespace quillmonger {

/// The program's windows and alert, and what feeds their views. The windows exist before the logic that shows them;
/// their content is made afterwards, from what the logic owns. Main thread.
class Views final {
 public:
  /// All that is named here outlives the views.
  Views(defaults::Defaults& defaults, WindowSystem& windowSystem, ImageCache::IconNaming iconNaming,
        const AppPickerViewModel::Collaborators& applications, foundation::NotificationCenter& notificationCenter,
        const UrlOpener& openUrl);

  /// Heeds what the user has told the desktop. Both outlive the views.
  void follow(DesktopPreferences& desktop, const MotionPreference& motion) {
    m_appearance.follow(desktop, [&motion] { return motion.reducesMotion(); });
  }

  [[nodiscard]] platform::QtQuickWindow& appWindow() { return m_appWindow; }
  [[nodiscard]] platform::QtQuickWindow& gettingStartedWindow() { return m_gettingStartedWindow; }
  [[nodiscard]] SettingsWindowController& settingsWindowController() { return m_settings; }
  [[nodiscard]] platform::QtQuickWindow& aboutWindow() { return m_aboutWindow; }
  [[nodiscard]] platform::QtQuickWindow& previewPanel() { return m_previewPanel; }
  [[nodiscard]] platform::QtQuickWindow& updateWindow() { return m_updateWindow; }
  [[nodiscard]] UpdateModel& updateModel() { return m_updateModel; }
  [[nodiscard]] AppPicker& appPicker() { return m_appPicker; }
  [[nodiscard]] Alert& alert() { return m_alert; }

  /// Before the first window is shown. All of it is there until `close`.
  void feed(Quillmonger& root, const Pasteboard& pasteboard, LocalEventMonitoring& eventMonitoring,
            const PanedSettings::Services& services);
  /// Lets go of everything that `feed` gave. The windows stay, without content, for those that hold them.
  void close();

 private:
  void endGuide();
  using Content = platform::QtQuickWindow::Content;
  /// Made when the first view needs it: a start has no use for it before.
  QQmlEngine& engine();
  [[nodiscard]] Content appContent();
  [[nodiscard]] Content gettingStartedContent();
  [[nodiscard]] Content aboutContent();
  [[nodiscard]] Content updateContent();
  [[nodiscard]] Content previewContent();

  defaults::Defaults& m_defaults;
  foundation::BackgroundQueue& m_backgroundQueue;
  foundation::RunLoop& m_runLoop;
  foundation::NotificationCenter& m_notificationCenter;
  ImageCache::IconNaming m_iconNaming;
  Appearance m_appearance;
  ItemInspection m_inspection;
  HistorySettings m_historySettings;
  AboutModel m_aboutModel;
  UpdateModel m_updateModel;
  std::function<std::string()> m_clipboardText;
  std::unique_ptr<SearchBarModel> m_searchBarModel;
  std::unique_ptr<ClipboardViewAdapter> m_clipboardViewAdapter;
  std::unique_ptr<PreviewFeed> m_previewFeed;
  std::unique_ptr<GuideFeed> m_guideFeed;
  std::unique_ptr<keyboardshortcuts::ShortcutText> m_activateChord;
  foundation::Subscription m_activateChordSubscription;
  // Destroyed after the windows, whose views are its objects, and before what the views show.
  std::unique_ptr<QQmlEngine> m_engine;
  QtAlert m_alert;
  platform::QtQuickWindow m_appWindow;
  platform::QtQuickWindow m_gettingStartedWindow;
  PanedSettings m_settings;
  platform::QtQuickWindow m_aboutWindow;
  platform::QtQuickWindow m_updateWindow;
  platform::QtQuickWindow m_previewPanel;
  AppPickerWindow m_appPicker;
};

}  // namespace quillmonger
