#include "tests/gallery/SettingsStage.h"

#include <QCoreApplication>
#include <algorithm>

#include "Quillmonger/history/view/ImageCache.h"
#include "Quillmonger/resources/QmlModule.h"
#include "Quillmonger/resources/Texts.h"
#include "Quillmonger/settings/SettingsKeys.h"
#include "Quillmonger/settings/view/QmlModule.h"
#include "Settings/view/QmlModule.h"
#include "tests/gallery/TileIcon.h"
#include "tests/gallery/ViewStage.h"

namespace testsupport {

using quillmonger::AppPickerModel;
using quillmonger::AppPickerViewModel;

SettingsStage::SettingsStage()
    : m_appearance(m_defaults.defaults),
      m_historyClearing({m_alert, quillmonger::localizedText, m_notificationCenter, [this] { ++m_clearCount; }, this}),
      m_general({m_defaults.defaults, m_launchAtLogin, m_updater, m_historyClearing}),
      m_ignore(m_defaults.defaults),
      m_search(m_defaults.defaults),
      m_appearanceSettings(m_defaults.defaults),
      m_ignoredApps({m_defaults.defaults, m_bundles, m_picker}),
      m_ignoredAppsModel(m_ignoredApps),
      m_settingsWindow({[this]() -> QQuickView& { return settingsWindow(); }, [] {}, [this] { m_pane->show(); },
                        [] { return true; }, m_defaults.suite}),
      m_controller(m_settingsWindow, panes(), settings::Style::toolbarItems,
                   settings::SettingsTabViewController::Animation::on,
                   settings::SettingsWindowController::SingleItemToolbar::hidden, {}),
      m_settingsModel(m_controller, m_settingsWindow.size()) {
  quillmonger::resourcesview::registerTypes(m_engine);
  settings::registerTypes();
  quillmonger::settingsview::registerTypes();
  m_engine.addImageProvider(QStringLiteral("appicon"), new quillmonger::ImageCache([this](const std::string& path) {
                              return m_folder.path() / (std::filesystem::path(path).stem().string() + ".svg");
                            }));
}

SettingsStage::~SettingsStage() = default;

void SettingsStage::install(const std::string& name, const std::string& genericName) {
  const auto identifier = "org.example." + name;
  m_installed.install(identifier, name, genericName);
  m_bundles.add(locationOf(name).absoluteString(), {identifier, name});
  drawTileIcon(m_folder.path() / (identifier + ".svg"), name);
}

foundation::Url SettingsStage::locationOf(const std::string& name) const {
  return foundation::Url::fromFilePath("/usr/share/applications/org.example." + name + ".desktop");
}

void SettingsStage::ignore(const std::string& name) {
  m_ignoredApps.addApp();
  m_picker.decide(locationOf(name));
}

std::vector<settings::Pane> SettingsStage::panes() {
  const quillmonger::PaneSurroundings surroundings{[this]() -> QQuickItem& { return m_settingsWindow.paneArea(); },
                                                   m_appearance};
  std::vector<settings::Pane> panes;
  panes.push_back(
      quillmonger::generalPane(surroundings, [this]() -> quillmonger::GeneralSettings& { return m_general; }));
  panes.push_back(quillmonger::ignorePane(surroundings, m_ignore,
                                          [this]() -> quillmonger::IgnoredAppsModel& { return m_ignoredAppsModel; }));
  panes.push_back(quillmonger::searchPane(surroundings, m_search));
  panes.push_back(quillmonger::appearancePane(surroundings, m_appearanceSettings));
  panes.push_back(quillmonger::keyBindingsPane(
      surroundings, [this]() -> quillmonger::KeyBindingsSettings& { return m_keyBindings.settings(); }));
  return panes;
}

QQuickView& SettingsStage::settingsWindow() {
  if (!m_pane) {
    m_pane = std::make_unique<QQuickView>(&m_engine, nullptr);
    m_pane->setInitialProperties(
        {{"model", QVariant::fromValue(&m_settingsModel)}, {"appearance", QVariant::fromValue(&m_appearance)}});
    m_pane->setSource(QUrl(QStringLiteral("qrc:/qt-project.org/imports/Quillmonger/Settings/SettingsRoot.qml")));
  }
  return *m_pane;
}

QQuickView& SettingsStage::pane(const char* identifier) {
  auto& tabs = m_controller.tabViewController();
  const auto active = tabs.activeTab();
  if (!active || tabs.panes().at(*active)->paneIdentifier().rawValue != identifier)
    m_controller.show(settings::PaneIdentifier{identifier});
  m_pane->grabWindow();
  QCoreApplication::processEvents();
  return *m_pane;
}

QQuickView& SettingsStage::pickerView() {
  if (!m_pickerModel) {
    m_pickerViewModel = std::make_unique<AppPickerViewModel>(
        AppPickerViewModel::Collaborators{m_installed, m_queue, m_runLoop},
        [this](const auto& url) { m_picked = url ? url->absoluteString() : std::string(); });
    m_pickerModel = std::make_unique<AppPickerModel>(*m_pickerViewModel, [this] { return m_clipboardText; });
  }
  return show(
      m_pickerView, QStringLiteral("AppPickerView"),
      {{"model", QVariant::fromValue(m_pickerModel.get())}, {"appearance", QVariant::fromValue(&m_appearance)}});
}

QQuickView& SettingsStage::about() {
  return show(m_about, QStringLiteral("AboutView"),
              {{"model", QVariant::fromValue(&m_aboutModel)}, {"appearance", QVariant::fromValue(&m_appearance)}});
}

void SettingsStage::loadApplications() {
  m_queue.run();
  m_runLoop.runPosted();
}

QQuickView& SettingsStage::show(std::unique_ptr<QQuickView>& view, const QString& file, const QVariantMap& properties) {
  if (!view) {
    view = std::make_unique<QQuickView>(&m_engine, nullptr);
    view->setInitialProperties(properties);
    view->setSource(QUrl(QStringLiteral("qrc:/qt-project.org/imports/Quillmonger/Settings/%1.qml").arg(file)));
    view->show();
  }
  view->grabWindow();
  QCoreApplication::processEvents();
  return *view;
}

std::vector<QQuickItem*> findAll(QQuickView& view, const QString& identifier) {
  std::vector<QQuickItem*> found;
  collect(view.contentItem(), identifier, found);
  std::ranges::stable_sort(found, {}, [](QQuickItem* item) { return item->mapToScene(QPointF()).y(); });
  return found;
}

QQuickItem* find(QQuickView& view, const QString& identifier) {
  const auto found = findAll(view, identifier);
  return found.empty() ? nullptr : found.front();
}

}  // namespace testsupport
