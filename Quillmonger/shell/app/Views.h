#pragma once

#include <QQmlEngine>
#include <functional>
#include <memory>
#include <string>

#include "Defaults/Defaults.h"
#include "Platform/qt/QtQuickWindow.h"
#include "Quillmonger/guide/view/GettingStartedModel.h"
#include "Quillmonger/history/view/ClipboardViewAdapter.h"
#include "Quillmonger/history/view/HistorySettings.h"
#include "Quillmonger/history/view/ImageCache.h"
#include "Quillmonger/resources/Appearance.h"
#include "Quillmonger/search/view/SearchBarModel.h"
#include "Quillmonger/settings/panes/AppPickerViewModel.h"
#include "Quillmonger/settings/panes/IgnoreAppsViewModel.h"
#include "Quillmonger/settings/view/AboutModel.h"
#include "Quillmonger/settings/view/AppPickerWindow.h"
#include "Quillmonger/settings/view/IgnoreSettings.h"
#include "Quillmonger/settings/view/IgnoredAppsModel.h"
#include "Quillmonger/shell/Quillmonger.h"
#include "Quillmonger/shell/app/OnePaneSettings.h"
#include "Quillmonger/shell/app/PreviewFeed.h"
#include "Quillmonger/shell/view/QtAlert.h"
#include "Quillmonger/shell/windows/WindowSystem.h"

namespace quillmonger {

/// The program's windows and alert, and what feeds their views. The windows exist before the logic that shows them;
/// their content is made afterwards, from what the logic owns. Main thread.
class Views final {
 public:
  /// All that is named here outlives the views.
  Views(defaults::Defaults& defaults, WindowSystem& windowSystem, ImageCache::IconNaming iconNaming,
        const AppPickerViewModel::Collaborators& applications, foundation::NotificationCenter& notificationCenter);

  /// Heeds what the user has told the desktop. It outlives the views.
  void follow(DesktopPreferences& desktop) { m_appearance.follow(desktop); }

  [[nodiscard]] platform::QtQuickWindow& appWindow() { return m_appWindow; }
  [[nodiscard]] platform::QtQuickWindow& gettingStartedWindow() { return m_gettingStartedWindow; }
  [[nodiscard]] SettingsWindowController& settingsWindowController() { return m_settingsController; }
  [[nodiscard]] platform::QtQuickWindow& aboutWindow() { return m_aboutWindow; }
  [[nodiscard]] platform::QtQuickWindow& previewPanel() { return m_previewPanel; }
  [[nodiscard]] AppPicker& appPicker() { return m_appPicker; }
  [[nodiscard]] Alert& alert() { return m_alert; }

  /// Before the first window is shown. Both are there until `close`.
  void feed(Quillmonger& root, const Pasteboard& pasteboard);
  /// Lets go of everything that `feed` gave. The windows stay, without content, for those that hold them.
  void close();

 private:
  using Content = platform::QtQuickWindow::Content;
  /// Made when the first view needs it: a start has no use for it before.
  QQmlEngine& engine();
  [[nodiscard]] Content appContent();
  [[nodiscard]] Content gettingStartedContent();
  [[nodiscard]] Content settingsContent();
  [[nodiscard]] Content aboutContent();
  [[nodiscard]] Content previewContent();

  defaults::Defaults& m_defaults;
  foundation::BackgroundQueue& m_backgroundQueue;
  foundation::RunLoop& m_runLoop;
  foundation::NotificationCenter& m_notificationCenter;
  ImageCache::IconNaming m_iconNaming;
  Appearance m_appearance;
  ItemInspection m_inspection;
  HistorySettings m_historySettings;
  IgnoreSettings m_ignoreSettings;
  AboutModel m_aboutModel;
  std::function<std::string()> m_clipboardText;
  std::function<IgnoreAppsViewModel&()> m_ignoreAppsViewModel;
  std::unique_ptr<SearchBarModel> m_searchBarModel;
  std::unique_ptr<ClipboardViewAdapter> m_clipboardViewAdapter;
  std::unique_ptr<PreviewFeed> m_previewFeed;
  std::unique_ptr<GettingStartedModel> m_gettingStartedModel;
  std::unique_ptr<IgnoredAppsModel> m_ignoredAppsModel;
  // Destroyed after the windows, whose views are its objects, and before what the views show.
  std::unique_ptr<QQmlEngine> m_engine;
  QtAlert m_alert;
  platform::QtQuickWindow m_appWindow;
  platform::QtQuickWindow m_gettingStartedWindow;
  platform::QtQuickWindow m_settingsWindow;
  OnePaneSettings m_settingsController;
  platform::QtQuickWindow m_aboutWindow;
  platform::QtQuickWindow m_previewPanel;
  AppPickerWindow m_appPicker;
};

}  // namespace quillmonger
