#pragma once

#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "Foundation/NotificationCenter.h"
#include "LaunchAtLogin/LaunchAtLogin.h"
#include "Quillmonger/resources/Appearance.h"
#include "Quillmonger/settings/panes/AppPickerViewModel.h"
#include "Quillmonger/settings/panes/IgnoreAppsViewModel.h"
#include "Quillmonger/settings/view/AboutModel.h"
#include "Quillmonger/settings/view/AppPickerModel.h"
#include "Quillmonger/settings/view/Panes.h"
#include "Settings/SettingsWindowController.h"
#include "Settings/view/QtSettingsWindow.h"
#include "Settings/view/SettingsModel.h"
#include "tests/gallery/KeyBindingsStage.h"
#include "tests/support/FakeAlertSheet.h"
#include "tests/support/FakeAppPicker.h"
#include "tests/support/FakeAppService.h"
#include "tests/support/FakeApplicationBundles.h"
#include "tests/support/FakeInstalledApplications.h"
#include "tests/support/FakeUpdater.h"
#include "tests/support/InlineBackgroundQueue.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/TestDefaults.h"
#include "tests/support/VirtualRunLoop.h"

namespace testsupport {

/// The real views of the settings, on state that the caller sets. Needs the application object.
class SettingsStage final {
 public:
  SettingsStage();
  ~SettingsStage();

  defaults::Defaults& defaults() { return m_defaults.defaults; }
  quillmonger::IgnoreAppsViewModel& ignoredApps() { return m_ignoredApps; }
  FakeAppPicker& picker() { return m_picker; }
  FakeAppService& appService() { return m_appService; }
  FakeAlertSheet& alert() { return m_alert; }
  FakeUpdater& updater() { return m_updater; }
  /// How often the history was cleared.
  [[nodiscard]] int clearCount() const { return m_clearCount; }

  /// Before the picker is built. The same name gives the same application.
  void install(const std::string& name, const std::string& genericName = {});
  /// An installed application's location.
  [[nodiscard]] foundation::Url locationOf(const std::string& name) const;
  void ignore(const std::string& name);
  void setClipboardText(std::string text) { m_clipboardText = std::move(text); }
  /// What the picker gave; absent while it is open, empty for none.
  [[nodiscard]] const std::optional<std::string>& picked() const { return m_picked; }

  /// The settings' window with this pane, as large as it wants to be. Built once, and laid out at each call.
  QQuickView& pane(const char* identifier);
  /// The picker's list, before the applications have been read.
  QQuickView& pickerView();
  QQuickView& about();
  /// What the buttons of the latter opened.
  [[nodiscard]] const std::vector<quillmonger::AboutModel::Page>& openedPages() const { return m_openedPages; }
  /// Lets the applications be read.
  void loadApplications();

 private:
  QQuickView& show(std::unique_ptr<QQuickView>& view, const QString& file, const QVariantMap& properties);
  QQuickView& settingsWindow();
  std::vector<settings::Pane> panes();

  TemporaryFolder m_folder;
  TestDefaults m_defaults;
  FakeApplicationBundles m_bundles;
  FakeAppPicker m_picker;
  FakeInstalledApplications m_installed;
  InlineBackgroundQueue m_queue;
  VirtualRunLoop m_runLoop;
  std::string m_clipboardText;
  std::optional<std::string> m_picked;
  quillmonger::Appearance m_appearance;
  int m_clearCount = 0;
  foundation::NotificationCenter m_notificationCenter;
  FakeAlertSheet m_alert;
  FakeAppService m_appService;
  FakeUpdater m_updater;
  launchatlogin::LaunchAtLogin m_launchAtLogin{m_appService, [](const std::string&) {}};
  quillmonger::HistoryClearing m_historyClearing;
  quillmonger::GeneralSettings m_general;
  quillmonger::IgnoreSettings m_ignore;
  quillmonger::SearchSettingsModel m_search;
  quillmonger::AppearanceSettings m_appearanceSettings;
  quillmonger::IgnoreAppsViewModel m_ignoredApps;
  quillmonger::IgnoredAppsModel m_ignoredAppsModel;
  KeyBindingsStage m_keyBindings;
  std::unique_ptr<quillmonger::AppPickerViewModel> m_pickerViewModel;
  std::unique_ptr<quillmonger::AppPickerModel> m_pickerModel;
  std::vector<quillmonger::AboutModel::Page> m_openedPages;
  quillmonger::AboutModel m_aboutModel{QStringLiteral("1.2.3"), [this](auto page) { m_openedPages.push_back(page); }};
  QQmlEngine m_engine;
  settings::QtSettingsWindow m_settingsWindow;
  settings::SettingsWindowController m_controller;
  settings::SettingsModel m_settingsModel;
  std::unique_ptr<QQuickView> m_pane;
  std::unique_ptr<QQuickView> m_pickerView;
  std::unique_ptr<QQuickView> m_about;
};

/// The shown items of a view with this accessibility identifier, from top to bottom.
std::vector<QQuickItem*> findAll(QQuickView& view, const QString& identifier);
/// The first of them; null when none is shown.
QQuickItem* find(QQuickView& view, const QString& identifier);

}  // namespace testsupport
