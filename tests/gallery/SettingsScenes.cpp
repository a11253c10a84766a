#include "tests/gallery/SettingsScenes.h"

#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QImage>
#include <QTest>
#include <functional>
#include <optional>

#include "Quillmonger/settings/SettingsKeys.h"
#include "tests/gallery/LongTexts.h"
#include "tests/gallery/SettingsStage.h"

namespace testsupport {

namespace {

struct Scene {
  const char* name;
  std::function<QQuickView&(SettingsStage&)> set;
};

void installAll(SettingsStage& stage) {
  for (const auto& [name, kind] :
       {std::pair("Calendar", "Dates"), std::pair("Editor", "Text Editor"), std::pair("Files", "File Manager"),
        std::pair("Image Viewer", ""), std::pair("KeePassXC", "Password Manager"), std::pair("Mail", "Mail Client"),
        std::pair("Music", "Player"), std::pair("Éditeur de partitions", ""), std::pair("Terminal", "Terminal"),
        std::pair("Web", "Browser"),
        std::pair("An application whose name is so long that no list can show all of it at once", ""),
        std::pair("مدير الملفات", "")})
    stage.install(name, kind);
}

void focus(QQuickView& view, const QString& identifier) {
  view.requestActivate();
  static_cast<void>(QTest::qWaitForWindowActive(&view));
  find(view, identifier)->forceActiveFocus(Qt::TabFocusReason);
}

void ignoreMany(SettingsStage& stage) {
  installAll(stage);
  stage.ignore("KeePassXC");
  stage.ignore("Terminal");
  stage.ignore("An application whose name is so long that no list can show all of it at once");
}

QQuickView& loadedPicker(SettingsStage& stage) {
  installAll(stage);
  stage.pickerView().requestActivate();
  stage.loadApplications();
  return stage.pickerView();
}

QQuickView& search(SettingsStage& stage, const char* term) {
  auto& view = loadedPicker(stage);
  static_cast<void>(QTest::qWaitForWindowActive(&view));
  for (const char* letter = term; *letter != 0; ++letter)
    QTest::keyClick(&view, *letter);
  return stage.pickerView();
}

const std::vector<Scene>& scenes() {
  static const std::vector<Scene> all{
      {"general", [](SettingsStage& stage) -> QQuickView& { return stage.pane("general"); }},
      {"general-picker",
       [](SettingsStage& stage) -> QQuickView& {
         focus(stage.pane("general"), "HistorySizePicker");
         QTest::keyClick(&stage.pane("general"), Qt::Key_Space);
         return stage.pane("general");
       }},
      {"general-radio-focus",
       [](SettingsStage& stage) -> QQuickView& {
         focus(stage.pane("general"), "OnPasteChoice");
         return stage.pane("general");
       }},
      {"settings-search", [](SettingsStage& stage) -> QQuickView& { return stage.pane("search"); }},
      {"settings-search-slider-focus",
       [](SettingsStage& stage) -> QQuickView& {
         focus(stage.pane("search"), "DebounceSlider");
         return stage.pane("search");
       }},
      {"appearance", [](SettingsStage& stage) -> QQuickView& { return stage.pane("appearance"); }},
      {"appearance-toolbar-focus",
       [](SettingsStage& stage) -> QQuickView& {
         focus(stage.pane("appearance"), "SettingsToolbar");
         return stage.pane("appearance");
       }},
      {"settings-keys", [](SettingsStage& stage) -> QQuickView& { return stage.pane("keyBindings"); }},
      {"ignore-fresh", [](SettingsStage& stage) -> QQuickView& { return stage.pane("ignore"); }},
      {"ignore-empty",
       [](SettingsStage& stage) -> QQuickView& {
         stage.ignoredApps().removeApp(stage.ignoredApps().apps().value().front());
         stage.defaults().set(quillmonger::keys::ignoreImages, true);
         return stage.pane("ignore");
       }},
      {"ignore-list",
       [](SettingsStage& stage) -> QQuickView& {
         ignoreMany(stage);
         return stage.pane("ignore");
       }},
      {"ignore-list-focus",
       [](SettingsStage& stage) -> QQuickView& {
         ignoreMany(stage);
         for (const char* name : {"Calendar", "Editor", "Files", "Mail"})
           stage.ignore(name);
         focus(stage.pane("ignore"), "IgnoredAppsList");
         return stage.pane("ignore");
       }},
      {"ignore-switch-focus",
       [](SettingsStage& stage) -> QQuickView& {
         focus(stage.pane("ignore"), "IgnoreSensitiveToggle");
         return stage.pane("ignore");
       }},
      {"ignore-button-focus",
       [](SettingsStage& stage) -> QQuickView& {
         focus(stage.pane("ignore"), "AddAppButton");
         return stage.pane("ignore");
       }},
      {"ignore-menu",
       [](SettingsStage& stage) -> QQuickView& {
         ignoreMany(stage);
         auto* row = findAll(stage.pane("ignore"), "IgnoredApp").at(1);
         QTest::mouseClick(&stage.pane("ignore"), Qt::RightButton, {}, row->mapToScene(QPointF(150, 20)).toPoint());
         return stage.pane("ignore");
       }},
      {"about", [](SettingsStage& stage) -> QQuickView& { return stage.about(); }},
      {"about-focus",
       [](SettingsStage& stage) -> QQuickView& {
         focus(stage.about(), "AcknowledgementsButton");
         return stage.about();
       }},
      {"picker-loading", [](SettingsStage& stage) -> QQuickView& { return stage.pickerView(); }},
      {"picker", loadedPicker},
      {"picker-search", [](SettingsStage& stage) -> QQuickView& { return search(stage, "edi"); }},
      {"picker-no-match", [](SettingsStage& stage) -> QQuickView& { return search(stage, "zebra"); }},
      {"picker-none",
       [](SettingsStage& stage) -> QQuickView& {
         stage.pickerView();
         stage.loadApplications();
         return stage.pickerView();
       }},
  };
  return all;
}

void save(const Scene& scene, const QDir& folder, quillmonger::ColorScheme scheme, const QString& suffix) {
  SettingsStage stage;
  stage.defaults().set<std::optional<quillmonger::ColorScheme>>(quillmonger::keys::selectedColorScheme, scheme);
  QQuickView& view = scene.set(stage);
  const QDeadlineTimer animationsEnd(250);
  while (!animationsEnd.hasExpired())
    QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
  view.grabWindow().save(folder.filePath(QLatin1String(scene.name) + suffix));
}

}  // namespace

void pictureSettings(const QDir& folder, quillmonger::ColorScheme scheme) {
  const QString shade = scheme == quillmonger::ColorScheme::dark ? "-dark" : "-light";
  for (const Scene& scene : scenes()) {
    save(scene, folder, scheme, shade + ".png");
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    save(scene, folder, scheme, shade + "-mirrored.png");
    const LongTexts longTexts;
    save(scene, folder, scheme, shade + "-long-mirrored.png");
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    save(scene, folder, scheme, shade + "-long.png");
  }
}

}  // namespace testsupport
