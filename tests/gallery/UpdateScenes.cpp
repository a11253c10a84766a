#include "tests/gallery/UpdateScenes.h"

#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QImage>
#include <QTest>
#include <optional>

#include "Quillmonger/settings/SettingsKeys.h"
#include "tests/gallery/SettingsStage.h"
#include "tests/gallery/UpdateStage.h"
#include "tests/support/FakeUpdateService.h"

namespace testsupport {

namespace {

using quillmonger::UpdateFailure;
using quillmonger::UpdateStatus;
using Stage = UpdateStatus::Stage;

struct Scene {
  const char* name;
  UpdateStatus status;
  const char* focus = nullptr;
};

quillmonger::Update withNotes(const std::string& notes) {
  auto update = updateTo("1.3.0");
  update.length = 12'400'000;
  update.notes = notes;
  return update;
}

std::string longNotes() {
  std::string notes = "A history that finds more\n\n";
  for (int line = 1; line <= 30; ++line)
    notes += "\u2022 Change " + std::to_string(line) + ": the preview opens at once, whatever was copied.\n";
  return notes;
}

std::vector<Scene> scenes() {
  const auto update = withNotes(
      "\u2022 The preview opens at once\n\u2022 Pictures keep their colours\n\u2022 Passwords of two more managers are "
      "recognised");
  const auto strange = withNotes(
      "<b>not bold</b>\nAWordThatIsLongerThanAnyLineCanEverBeAndHasToBeBrokenSomewhereInTheMiddleOfItAllTheSame\n"
      "مرحبا بالعالم\n漢字とひらがな");
  return {{"update-checking", {.stage = Stage::checking}},
          {"update-none", {.stage = Stage::upToDate}},
          {"update-available", {.stage = Stage::available, .update = update}},
          {"update-available-bare", {.stage = Stage::available, .update = withNotes("")}},
          {"update-available-long", {.stage = Stage::available, .update = withNotes(longNotes())}, "UpdateNotes"},
          {"update-available-strange", {.stage = Stage::available, .update = strange}, "UpdateButton2"},
          {"update-downloading", {.stage = Stage::downloading, .update = update, .received = 5'200'000}},
          {"update-downloading-begin", {.stage = Stage::downloading, .update = update}},
          {"update-ready", {.stage = Stage::ready, .update = update}},
          {"update-failed", {.stage = Stage::failed, .failure = UpdateFailure::unreachable}},
          {"update-untrusted", {.stage = Stage::failed, .failure = UpdateFailure::untrusted}}};
}

void save(const Scene& scene, const QDir& folder, quillmonger::ColorScheme scheme, const QString& suffix) {
  UpdateStage stage;
  stage.defaults().set<std::optional<quillmonger::ColorScheme>>(quillmonger::keys::selectedColorScheme, scheme);
  QQuickView& view = stage.show(scene.status);
  view.requestActivate();
  static_cast<void>(QTest::qWaitForWindowActive(&view));
  if (scene.focus != nullptr) find(view, scene.focus)->forceActiveFocus(Qt::TabFocusReason);
  const QDeadlineTimer animationsEnd(250);
  while (!animationsEnd.hasExpired())
    QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
  view.grabWindow().save(folder.filePath(QLatin1String(scene.name) + suffix));
}

}  // namespace

void pictureUpdates(const QDir& folder, quillmonger::ColorScheme scheme) {
  const QString shade = scheme == quillmonger::ColorScheme::dark ? "-dark" : "-light";
  for (const Scene& scene : scenes()) {
    save(scene, folder, scheme, shade + ".png");
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    save(scene, folder, scheme, shade + "-mirrored.png");
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
  }
}

}  // namespace testsupport
