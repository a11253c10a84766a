#pragma once

#include <functional>
#include <memory>

#include "LaunchAtLogin/LaunchAtLogin.h"
#include "Platform/qt/QtQuickWindow.h"
#include "Quillmonger/resources/QtAlertSheet.h"
#include "Quillmonger/settings/view/Panes.h"
#include "Quillmonger/shell/Quillmonger.h"
#include "Quillmonger/shell/windows/SettingsWindowController.h"
#include "Settings/SettingsWindowController.h"
#include "Settings/view/QtSettingsWindow.h"
#include "Settings/view/SettingsModel.h"

namespace quillmonger {

/// The window of the settings, its panes and what these show. Main thread.
class PanedSettings final : public SettingsWindowController {
 public:
  struct Surroundings {
    defaults::Defaults& defaults;
    WindowSystem& windowSystem;
    Appearance& appearance;
    std::function<QQmlEngine&()> engine;
    foundation::RunLoop& runLoop;
    foundation::NotificationCenter& notificationCenter;
  };
  /// What the panes change beside the settings.
  struct Services {
    launchatlogin::LaunchAtLogin& launchAtLogin;
    const Updater& updater;
    keyboardshortcuts::KeyboardShortcuts& shortcuts;
    const sauce::InputSourceService& inputSources;
    keyboardshortcuts::RecordedEvents& recordedEvents;
    std::function<void()> beep;
  };

  /// All that is named here outlives the settings.
  explicit PanedSettings(const Surroundings& surroundings);
  PanedSettings(const PanedSettings&) = delete;
  PanedSettings& operator=(const PanedSettings&) = delete;
  ~PanedSettings() override { close(); }

  /// Before the window is first shown. All of it is there until `close`.
  void feed(Quillmonger& root, const Services& services);
  /// Lets go of what `feed` gave. The window stays, without content, for those that hold it.
  void close();

  [[nodiscard]] Window& window() override { return m_window; }
  void show(std::optional<std::string_view> pane) override;
  /// Null before it is loaded.
  [[nodiscard]] QWindow* view() const;

 private:
  [[nodiscard]] platform::QtQuickWindow::Content content();
  [[nodiscard]] QQuickView& loadedView();
  [[nodiscard]] std::vector<settings::Pane> panes(Appearance& appearance);

  QtAlertSheet m_alert;
  IgnoreSettings m_ignore;
  SearchSettingsModel m_search;
  AppearanceSettings m_appearanceSettings;
  std::function<IgnoreAppsViewModel&()> m_ignoreAppsViewModel;
  std::unique_ptr<HistoryClearing> m_historyClearing;
  std::unique_ptr<GeneralSettings> m_general;
  std::unique_ptr<IgnoredAppsModel> m_ignoredApps;
  std::unique_ptr<KeyBindingsSettings> m_keyBindings;
  defaults::Defaults& m_defaults;
  foundation::RunLoop& m_runLoop;
  foundation::NotificationCenter& m_notificationCenter;
  Appearance& m_appearance;
  platform::QtQuickWindow m_window;
  settings::QtSettingsWindow m_settingsWindow;
  settings::SettingsWindowController m_controller;
  settings::SettingsModel m_model;
};

}  // namespace quillmonger
