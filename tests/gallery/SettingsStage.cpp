#include "tests/gallery/SettingsStage.h"

#include <QCoreApplication>
#include <algorithm>

#include "Quillmonger/history/view/ImageCache.h"
#include "Quillmonger/resources/QmlModule.h"
#include "Quillmonger/settings/SettingsKeys.h"
#include "Quillmonger/settings/view/QmlModule.h"
#include "tests/gallery/TileIcon.h"
#include "tests/gallery/ViewStage.h"

namespace testsupport {

using quillmonger::AppPickerModel;
using quillmonger::AppPickerViewModel;

SettingsStage::SettingsStage()
    : m_appearance(m_defaults.defaults),
      m_settings(m_defaults.defaults),
      m_ignoredApps({m_defaults.defaults, m_bundles, m_picker}),
      m_ignoredAppsModel(m_ignoredApps) {
  quillmonger::resourcesview::registerTypes(m_engine);
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

QQuickView& SettingsStage::pane() {
  return show(m_pane, QStringLiteral("IgnorePane"),
              {{"settings", QVariant::fromValue(&m_settings)},
               {"apps", QVariant::fromValue(&m_ignoredAppsModel)},
               {"appearance", QVariant::fromValue(&m_appearance)}});
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
  collect(view.rootObject(), identifier, found);
  std::ranges::stable_sort(found, {}, [](QQuickItem* item) { return item->mapToScene(QPointF()).y(); });
  return found;
}

QQuickItem* find(QQuickView& view, const QString& identifier) {
  const auto found = findAll(view, identifier);
  return found.empty() ? nullptr : found.front();
}

}  // namespace testsupport
