#include "tests/gallery/GuideScenes.h"

#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <chrono>
#include <functional>
#include <optional>

#include "Quillmonger/settings/SettingsKeys.h"
#include "tests/gallery/GuideStage.h"
#include "tests/gallery/LongTexts.h"

namespace testsupport {

namespace {

using quillmonger::LaunchScreen;

struct Screen {
  const char* name;
  LaunchScreen screen;
};

constexpr Screen screens[]{{"welcome", LaunchScreen::welcome},   {"startup", LaunchScreen::startup},
                           {"paste", LaunchScreen::paste},       {"formatting", LaunchScreen::formatting},
                           {"search", LaunchScreen::search},     {"preview", LaunchScreen::preview},
                           {"settings", LaunchScreen::settings}, {"accessibility", LaunchScreen::accessibility}};

// On a backdrop, as a compositor would show it.
void save(QQuickView& view, const QString& path) {
  const QDeadlineTimer animationsEnd(400);
  while (!animationsEnd.hasExpired())
    QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
  const QImage window = view.grabWindow();
  QImage picture(window.size(), QImage::Format_RGB32);
  picture.fill(QColor(0x7f, 0x8f, 0xa6));
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  const double radius = 15 * view.devicePixelRatio();
  QPainterPath corners;
  corners.addRoundedRect(picture.rect(), radius, radius);
  painter.setClipPath(corners);
  painter.drawImage(picture.rect(), window);
  painter.end();
  picture.save(path);
}

void pictureScreen(const Screen& screen, const QString& path, quillmonger::ColorScheme scheme,
                   const std::function<void(GuideStage&)>& set) {
  GuideStage stage;
  stage.defaults().set<std::optional<quillmonger::ColorScheme>>(quillmonger::keys::selectedColorScheme, scheme);
  set(stage);
  stage.view();
  stage.goTo(screen.screen);
  stage.runLoop().advance(std::chrono::seconds(1));
  save(stage.view(), path);
}

}  // namespace

void pictureGuide(const QDir& folder, quillmonger::ColorScheme scheme) {
  const QString shade = scheme == quillmonger::ColorScheme::dark ? "-dark" : "-light";
  for (const Screen& screen : screens) {
    const QString path = folder.filePath("guide-" + QLatin1String(screen.name) + shade);
    const auto still = [](GuideStage& stage) { stage.videos().remove(); };
    pictureScreen(screen, path + ".png", scheme, still);
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    const LongTexts longTexts;
    pictureScreen(screen, path + "-long-mirrored.png", scheme, still);
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
  }
  pictureScreen(screens[1], folder.filePath("guide-paused" + shade + ".png"), scheme,
                [](GuideStage& stage) { stage.desktop().reducesMotion().set(true); });
  pictureScreen(screens[7], folder.filePath("guide-not-granted" + shade + ".png"), scheme, [](GuideStage& stage) {
    stage.videos().remove();
    stage.access().setAllowed(false);
  });
}

}  // namespace testsupport
