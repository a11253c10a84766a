#include <QDeadlineTimer>
#include <QDir>
#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QQuickWindow>
#include <functional>
#include <iostream>

#include "Quillmonger/resources/EmojiFont.h"
#include "Quillmonger/resources/Texts.h"
#include "Quillmonger/settings/SettingsKeys.h"
#include "tests/gallery/GuideScenes.h"
#include "tests/gallery/KeyBindingsScenes.h"
#include "tests/gallery/PreviewScenes.h"
#include "tests/gallery/SettingsScenes.h"
#include "tests/gallery/UpdateScenes.h"
#include "tests/gallery/ViewStage.h"

// Pictures every state of the views: quillmonger-gallery FOLDER. QT_SCALE_FACTOR sets the scale.

namespace {

using testsupport::ViewStage;

std::vector<ViewStage::Item> ordinaryHistory(ViewStage& stage) {
  const char* text = "public.utf8-plain-text";
  return {
      stage.makeItem("Meeting moved to Thursday, 14:30 in the small room on the second floor", text, "Mail"),
      stage.makeItem("https://doc.example.org/guide/getting-started?section=install#linux", text, "Web"),
      stage.makeItem("git rebase --interactive origin/main", text, "Terminal"),
      stage.makeItem("picture", "public.png", "Paint"),
      stage.makeItem("file:///home/anna/Documents/Quarterly%20report%20(final).pdf", "public.file-url", "Files"),
      stage.makeItem("#ff7a59", text, "Design"),
      stage.makeItem("for (const auto& row : rows) {\n    total += row.amount;\n}\n", text, "Editor"),
      stage.makeItem("Kind regards,\nAnna", text, "Mail"),
      stage.makeItem("2026-11-21T02:25:50Z", text, "Terminal"),
      stage.makeItem("{\"name\": \"quill\", \"weight\": 3}", text, "Editor"),
      stage.makeItem("+44 20 7946 0958", text, "Web"),
      stage.makeItem("no application is known for this one", text),
      stage.makeItem("The quick brown fox jumps over the lazy dog", text, "Editor"),
  };
}

std::vector<ViewStage::Item> strangeTexts(ViewStage& stage) {
  const char* text = "public.utf8-plain-text";
  std::string huge;
  while (huge.size() < (std::size_t{10} << 20))
    huge += "ten megabytes of words ";
  return {
      stage.makeItem(
          "👩‍👩‍👧‍👦 family, 🏳️‍🌈 flag, 👍🏽 thumb, 🇯🇵 country, e\u0301 accent",
          text, "Chat"),
      stage.makeItem("مرحبا بالعالم، هذا نص عربي مع 123 أرقام", text, "Chat"),
      stage.makeItem("שלום עולם and some English after it", text, "Chat"),
      stage.makeItem("漢字とひらがなとカタカナが混ざった文章です。中文字符也可以。한국어도.", text, "Web"),
      stage.makeItem(huge, text, "Editor"),
      stage.makeItem(std::string("bell \a escape \x1b[31m nul \0 end", 31), text, "Terminal"),
      stage.makeItem("<b>not bold</b> & <font color='red'>not red</font> &amp;", text, "Web"),
      stage.makeItem("tabs\tand\n\n\n   many      blanks \u2028 and line separators", text, "Editor"),
      stage.makeItem(
          "Z͑ͫ̓ͪ̂ͫ̽͏̴̙̤̞͉͚̯̞̠͍A̴̵̜̰͔ͫ͗͢L̠ͨͧͩ͘G̴̻͈͍͔̹̑͗̎̅͛́Ǫ̵̹̻̝̳͂̌̌"
          "͘"
          " "
          "marks",
          text, "Chat"),
      stage.makeItem("\u202Eright to left override", text, "Web"),
  };
}

struct Scene {
  const char* name;
  std::function<void(ViewStage&)> set;
};

void searchFor(ViewStage& stage, const std::string& term, std::size_t lower, std::size_t upper) {
  const auto items = ordinaryHistory(stage);
  stage.show(items);
  stage.searchTerm().set(term);
  stage.showRows({{items[12].get(), 0.0, quillmonger::CharacterRange{lower, upper}},
                  {items[0].get(), 0.0, quillmonger::CharacterRange{8, 12}},
                  {items[6].get(), 0.0, quillmonger::CharacterRange{5, 9}},
                  {items[2].get(), 1.0, std::nullopt}});
}

const std::vector<Scene>& scenes() {
  static const std::vector<Scene> all{
      {"list", [](ViewStage& stage) { stage.show(ordinaryHistory(stage)); }},
      {"far-down",
       [](ViewStage& stage) {
         stage.show(ordinaryHistory(stage));
         stage.view();
         stage.select(11);
       }},
      {"search", [](ViewStage& stage) { searchFor(stage, "quick", 4, 8); }},
      {"no-hit",
       [](ViewStage& stage) {
         stage.show(ordinaryHistory(stage));
         stage.searchTerm().set("zebra");
         stage.showRows({});
       }},
      {"empty", [](ViewStage&) {}},
      {"incognito",
       [](ViewStage& stage) {
         stage.defaults().set(quillmonger::keys::isIncognitoMode, true);
         stage.show(ordinaryHistory(stage));
       }},
      {"option",
       [](ViewStage& stage) {
         stage.show(ordinaryHistory(stage));
         stage.isOptionPressed().set(true);
       }},
      {"strange", [](ViewStage& stage) { stage.show(strangeTexts(stage)); }},
      {"strange-hits",
       [](ViewStage& stage) {
         struct Hit {
           std::size_t text;
           quillmonger::CharacterRange characters;
         };
         std::vector<ViewStage::Item> items;
         std::vector<ViewStage::Row> rows;
         for (const Hit& hit : {Hit{0, {0, 0}}, Hit{0, {18, 18}}, Hit{0, {34, 40}}, Hit{1, {6, 12}}, Hit{1, {9, 10}},
                                Hit{2, {5, 8}}, Hit{3, {2, 5}}, Hit{8, {1, 2}}}) {
           items.push_back(strangeTexts(stage).at(hit.text));
           rows.push_back({items.back().get(), 0.0, hit.characters});
         }
         stage.show(items);
         stage.searchTerm().set("hit");
         stage.showRows(std::move(rows));
       }},
      {"strange-head",
       [](ViewStage& stage) {
         stage.defaults().set(quillmonger::keys::truncationMode, quillmonger::TruncationMode::head);
         stage.show(strangeTexts(stage));
       }},
      {"plain",
       [](ViewStage& stage) {
         for (const auto* key : {&quillmonger::keys::showSourceAppIcon, &quillmonger::keys::showKeyboardShortcuts,
                                 &quillmonger::keys::showContentTypeIndicators, &quillmonger::keys::showScrollbar})
           stage.defaults().set(*key, false);
         stage.show(ordinaryHistory(stage));
       }},
  };
  return all;
}

// On a backdrop, as a compositor would show it. The display that isn't there has no transparency.
void save(const QImage& window, const QString& path) {
  const double scale = window.width() / 600.0;
  QImage picture(window.size() + QSize(40, 40) * scale, QImage::Format_RGB32);
  picture.fill(QColor(0x7f, 0x8f, 0xa6));
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(scale, scale);
  QPainterPath corners;
  corners.addRoundedRect(QRectF(20, 20, 600, 445), 15, 15);
  painter.setClipPath(corners);
  painter.drawImage(QRectF(20, 20, 600, 445), window);
  painter.end();
  picture.save(path);
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
  QGuiApplication application(argc, argv);
  quillmonger::preferColourEmoji();
  quillmonger::Texts texts;
  QCoreApplication::installTranslator(&texts);
  if (argc != 2) {
    std::cerr << "usage: quillmonger-gallery FOLDER\n";
    return 2;
  }
  const QDir folder(QString::fromLocal8Bit(argv[1]));
  for (const auto scheme : {quillmonger::ColorScheme::light, quillmonger::ColorScheme::dark}) {
    testsupport::pictureGuide(folder, scheme);
    testsupport::pictureSettings(folder, scheme);
    testsupport::pictureKeyBindings(folder, scheme);
    testsupport::picturePreview(folder, scheme);
    testsupport::pictureUpdates(folder, scheme);
    for (const Scene& scene : scenes()) {
      ViewStage stage;
      stage.defaults().set<std::optional<quillmonger::ColorScheme>>(quillmonger::keys::selectedColorScheme, scheme);
      scene.set(stage);
      stage.view();
      const QDeadlineTimer animationsEnd(400);
      while (!animationsEnd.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
      const char* shade = scheme == quillmonger::ColorScheme::dark ? "dark" : "light";
      save(stage.picture(),
           folder.filePath(QStringLiteral("%1-%2.png").arg(QLatin1String(scene.name), QLatin1String(shade))));
    }
  }
  return 0;
}
