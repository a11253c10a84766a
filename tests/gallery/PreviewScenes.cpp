#include "tests/gallery/PreviewScenes.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QTest>
#include <algorithm>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "Quillmonger/settings/SettingsKeys.h"
#include "tests/gallery/LongTexts.h"
#include "tests/gallery/PreviewStage.h"

namespace testsupport {

namespace {

constexpr int paneWidth = 332;

struct Scene {
  const char* name;
  std::function<PreviewStage::Item(PreviewStage&)> item;
  std::function<void(PreviewStage&)> then = [](PreviewStage&) {};
};

std::string longText() {
  std::string text;
  for (int line = 1; text.size() < 40'000; ++line)
    text += "Paragraph " + std::to_string(line) + " of a report that goes on for longer than anybody reads.\n";
  return text;
}

void goToTheEnd(PreviewStage& stage) {
  QQuickItem* list = stage.find("FadingTextView");
  // The height of what has not been laid out is estimated, so that the end is reached in steps.
  for (int step = 0; step < 3; ++step) {
    QMetaObject::invokeMethod(list, "positionViewAtEnd");
    stage.view();
  }
}

void hoverTheFirstButton(PreviewStage& stage) {
  QQuickItem* button = stage.find("CopyButton");
  QTest::mouseMove(&stage.view(), button->mapToScene(button->boundingRect().center()).toPoint());
}

void showTheKeys(PreviewStage& stage) { stage.setOptionPressed(true); }

void pressTheSecondButton(PreviewStage& stage) {
  stage.model().pressCopyButton(1);
  stage.load();
}

void selectAcrossPieces(PreviewStage& stage) {
  QQuickItem* list = stage.find("FadingTextView");
  const QPoint start = list->mapToScene(QPointF(60, 40)).toPoint();
  QTest::mousePress(&stage.view(), Qt::LeftButton, {}, start);
  QTest::mouseMove(&stage.view(), start + QPoint(120, 200));
  QTest::mouseRelease(&stage.view(), Qt::LeftButton, {}, start + QPoint(120, 200));
}

const char* const mixedScripts =
    "مرحبا بالعالم، هذا نص عربي مع 123 أرقام وكلمات إضافية حتى يلتف السطر\n\nשלום עולם and some English\n\n"
    "漢字とひらがなとカタカナが混ざった文章です。中文字符也可以。한국어도."
    "\n\n👩‍👩‍👧‍👦 "
    "family, "
    "🏳️‍🌈 "
    "flag, "
    "👍🏽 thumb\n\n"
    "bell \a escape \x1b[31m "
    "tab\tend\n\nAVeryLongWordWithoutAnyBlankInItThatHasToBeBrokenSomewhereInTheMiddleOfTheLine";

const std::vector<Scene>& scenes() {
  static const std::vector<Scene> all{
      {"empty", [](PreviewStage&) { return PreviewStage::Item(); }},
      {"text",
       [](PreviewStage& stage) {
         return stage.makeItem("for (const auto& row : rows) {\n    total += row.amount;\n}\n",
                               "public.utf8-plain-text", "Editor");
       }},
      {"date", [](PreviewStage& stage) { return stage.makeItem("1700000000", "public.utf8-plain-text", "Terminal"); }},
      {"date-tip",
       [](PreviewStage& stage) { return stage.makeItem("1700000000", "public.utf8-plain-text", "Terminal"); },
       hoverTheFirstButton},
      {"date-keys",
       [](PreviewStage& stage) { return stage.makeItem("1700000000", "public.utf8-plain-text", "Terminal"); },
       showTheKeys},
      {"json-keys", [](PreviewStage& stage) { return stage.makeItem("[1, 2]"); }, showTheKeys},
      {"color-copied",
       [](PreviewStage& stage) { return stage.makeItem("#ff7a59", "public.utf8-plain-text", "Design"); },
       pressTheSecondButton},
      {"color", [](PreviewStage& stage) { return stage.makeItem("#ff7a59", "public.utf8-plain-text", "Design"); }},
      {"json",
       [](PreviewStage& stage) {
         return stage.makeItem("{\"name\": \"quill\", \"weight\": 3, \"colours\": [\"black\", \"blue\"]}",
                               "public.utf8-plain-text", "A Very Long Application Name That Needs To Be Cut");
       }},
      {"picture", [](PreviewStage& stage) { return stage.makePicture(1920, 1080, "Paint"); }},
      {"unreadable-picture",
       [](PreviewStage& stage) {
         stage.pictures().setPicture("broken", {20'000, 10'000});
         return stage.makeItem("broken", "public.png", "Paint");
       }},
      {"tall-picture", [](PreviewStage& stage) { return stage.makePicture(200, 900, "Paint"); }},
      {"file",
       [](PreviewStage& stage) {
         return stage.makeItem("file:///home/anna/Documents/Quarterly%20report%20(final).pdf", "public.file-url",
                               "Files");
       }},
      {"long", [](PreviewStage& stage) { return stage.makeItem(longText()); }, selectAcrossPieces},
      {"long-end", [](PreviewStage& stage) { return stage.makeItem(longText()); }, goToTheEnd},
      {"scripts", [](PreviewStage& stage) { return stage.makeItem(mixedScripts, "public.utf8-plain-text", "Chat"); }},
  };
  return all;
}

QImage picture(PreviewStage& stage) {
  const QImage window = stage.view().grabWindow();
  const double scale = window.width() / 600.0;
  QImage picture((QSizeF(paneWidth + 20, 465) * scale).toSize(), QImage::Format_RGB32);
  picture.fill(QColor(0x7f, 0x8f, 0xa6));
  QPainter painter(&picture);
  painter.scale(scale, scale);
  painter.setRenderHint(QPainter::Antialiasing);
  QPainterPath corners;
  corners.addRoundedRect(QRectF(10, 10, paneWidth, 445), 15, 15);
  painter.setClipPath(corners);
  painter.drawImage(QRectF(10, 10, paneWidth, 445), window, QRectF(0, 0, paneWidth * scale, 445 * scale));
  return picture;
}

void save(const Scene& scene, const QDir& folder, quillmonger::ColorScheme scheme) {
  PreviewStage stage;
  stage.defaults().set<std::optional<quillmonger::ColorScheme>>(quillmonger::keys::selectedColorScheme, scheme);
  stage.view();
  stage.select(scene.item(stage));
  stage.load();
  stage.view();
  scene.then(stage);
  const QDeadlineTimer tipsAndAnimationsEnd(800);
  while (!tipsAndAnimationsEnd.hasExpired())
    QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
  const char* shade = scheme == quillmonger::ColorScheme::dark ? "dark" : "light";
  picture(stage).save(
      folder.filePath(QStringLiteral("preview-%1-%2.png").arg(QLatin1String(scene.name), QLatin1String(shade))));
}

}  // namespace

void picturePreview(const QDir& folder, quillmonger::ColorScheme scheme) {
  for (const Scene& scene : scenes())
    save(scene, folder, scheme);
  {
    const LongTexts longTexts;
    for (const std::string_view name : {"empty", "date-tip", "json", "long-end"}) {
      const auto scene = std::ranges::find(scenes(), name, &Scene::name);
      const std::string doubled = "doubled-" + std::string(name);
      save({doubled.c_str(), scene->item, scene->then}, folder, scheme);
    }
  }
  QGuiApplication::setLayoutDirection(Qt::RightToLeft);
  save({"mirrored", std::ranges::find(scenes(), std::string_view("date"), &Scene::name)->item}, folder, scheme);
  QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

}  // namespace testsupport
