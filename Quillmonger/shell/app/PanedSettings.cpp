#include "Quillmonger/shell/app/PanedSettings.h"

#include <QGuiApplication>
#include <QLocale>
#include <QQuickView>
#include <utility>

#include "Quillmonger/resources/Texts.h"
#include "Settings/Localization.h"

namespace quillmonger {

namespace {

using Kind = platform::QtQuickWindow::Kind;

constexpr int presentWording = 14;

std::string titleOfASinglePane() {
  return settings::localization::singlePaneTitle(
      {QGuiApplication::applicationDisplayName().toStdString(), QCoreApplication::applicationName().toStdString(), {}},
      QLocale().name().toStdString(), presentWording);
}

}  // namespace

PanedSettings::PanedSettings(const Surroundings& with)
    : m_alert({with.engine, with.appearance, [this]() -> QWindow* { return view(); }, with.runLoop}),
      m_ignore(with.defaults),
      m_search(with.defaults),
      m_appearanceSettings(with.defaults),
      m_defaults(with.defaults),
      m_runLoop(with.runLoop),
      m_notificationCenter(with.notificationCenter),
      m_appearance(with.appearance),
      m_window({Kind::dialog, QSize(), {}, [this] { return content(); }, with.engine}, with.windowSystem),
      m_settingsWindow({[this]() -> QQuickView& { return loadedView(); }, [this] { m_window.center(); },
                        [this] { m_window.makeKeyAndOrderFront(); }, [this] { return m_appearance.reducesMotion(); },
                        with.defaults.suite()}),
      m_controller(m_settingsWindow, panes(with.appearance), settings::Style::toolbarItems,
                   settings::SettingsTabViewController::Animation::on,
                   settings::SettingsWindowController::SingleItemToolbar::hidden, titleOfASinglePane()),
      m_model(m_controller, m_settingsWindow.size()) {}

std::vector<settings::Pane> PanedSettings::panes(Appearance& appearance) {
  const PaneSurroundings surroundings{[this]() -> QQuickItem& { return m_settingsWindow.paneArea(); }, appearance};
  std::vector<settings::Pane> panes;
  panes.push_back(generalPane(surroundings, [this]() -> GeneralSettings& { return *m_general; }));
  panes.push_back(ignorePane(surroundings, m_ignore, [this]() -> IgnoredAppsModel& {
    m_ignoredApps = std::make_unique<IgnoredAppsModel>(m_ignoreAppsViewModel());
    return *m_ignoredApps;
  }));
  panes.push_back(searchPane(surroundings, m_search));
  panes.push_back(appearancePane(surroundings, m_appearanceSettings));
  panes.push_back(keyBindingsPane(surroundings, [this]() -> KeyBindingsSettings& { return *m_keyBindings; }));
  return panes;
}

void PanedSettings::feed(Quillmonger& root, const Services& services) {
  m_historyClearing = std::make_unique<HistoryClearing>(HistoryClearing::Collaborators{
      m_alert, localizedText, m_notificationCenter, [&root] { root.clipboardViewModel().deleteAllItems(); }, &root});
  m_general = std::make_unique<GeneralSettings>(
      GeneralSettings::Collaborators{m_defaults, services.launchAtLogin, services.updater, *m_historyClearing});
  m_keyBindings = std::make_unique<KeyBindingsSettings>(
      m_defaults, keyboardshortcuts::RecorderCocoa::Surroundings{
                      services.shortcuts, services.inputSources, services.recordedEvents, m_alert, m_notificationCenter,
                      m_runLoop, localizedText, [&root] { return root.mainMenu(); }, services.beep});
  m_ignoreAppsViewModel = [&root]() -> IgnoreAppsViewModel& { return root.ignoreAppsViewModel(); };
}

void PanedSettings::close() {
  m_alert.close();
  if (view() != nullptr) m_settingsWindow.endAnimation();
  m_window.unload();
  m_ignoredApps.reset();
  m_keyBindings.reset();
  m_general.reset();
  m_historyClearing.reset();
  m_ignoreAppsViewModel = nullptr;
}

void PanedSettings::show(std::optional<std::string_view> pane) {
  m_controller.show(pane ? std::optional(settings::PaneIdentifier{std::string(*pane)}) : std::nullopt);
}

QWindow* PanedSettings::view() const { return m_window.view(); }

platform::QtQuickWindow::Content PanedSettings::content() {
  return {QUrl(QStringLiteral("qrc:/qt-project.org/imports/Quillmonger/Settings/SettingsRoot.qml")),
          {{"model", QVariant::fromValue(&m_model)}, {"appearance", QVariant::fromValue(&m_appearance)}}};
}

QQuickView& PanedSettings::loadedView() {
  m_window.prepare();
  return *m_window.view();
}

}  // namespace quillmonger
