#include <gtest/gtest.h>

#include <QAccessible>
#include <QTest>

#include "Quillmonger/input/Action.h"
#include "tests/gallery/PreviewStage.h"
#include "tests/support/InLocale.h"
#include "tests/support/InTimeZone.h"

namespace {

using testsupport::PreviewStage;

class PreviewPanels : public testing::Test {
 protected:
  void show(std::string text) {
    m_stage.select(m_stage.makeItem(std::move(text)));
    m_stage.load();
  }
  std::vector<std::string> textsOf(const QString& identifier) {
    std::vector<std::string> texts;
    for (QQuickItem* item : m_stage.findAll(identifier))
      texts.push_back(item->property("text").toString().toStdString());
    return texts;
  }
  void press(std::size_t button) {
    QQuickItem* item = m_stage.findAll("CopyButton").at(button);
    QTest::mouseClick(&m_stage.view(), Qt::LeftButton, {}, item->mapToScene(item->boundingRect().center()).toPoint());
    m_stage.load();
  }
  void select(std::size_t row, int length) {
    QMetaObject::invokeMethod(m_stage.findAll("OculetValue").at(row), "select", Q_ARG(int, 0), Q_ARG(int, length));
  }

  testsupport::InLocale m_locale{"en_US"};
  testsupport::InTimeZone m_zone{"Europe/Berlin"};
  PreviewStage m_stage;
};

TEST_F(PreviewPanels, ReadADateInThreeForms) {
  show("1700000000");

  EXPECT_NE(m_stage.find("OculetDateView"), nullptr);
  EXPECT_EQ(textsOf("OculetLabel"), (std::vector<std::string>{"Unix", "ISO 8601", "RFC 2822"}));
  EXPECT_EQ(textsOf("OculetValue"),
            (std::vector<std::string>{"1700000000", "2023-11-14T22:13:20Z", "Tue, 14 Nov 2023 23:13:20 +0100"}));
}

TEST_F(PreviewPanels, GiveANegativeUnixTimeBeforeNineteenSeventy) {
  show("1969-07-20T20:17:40Z");

  EXPECT_EQ(textsOf("OculetValue").at(0), "-14182940");
}

TEST_F(PreviewPanels, ReadAColorInThreeForms) {
  show("hsl(200, 50%, 40%)");

  EXPECT_NE(m_stage.find("OculetColorView"), nullptr);
  EXPECT_EQ(textsOf("OculetLabel"), (std::vector<std::string>{"HEX", "RGB", "HSL"}));
  EXPECT_EQ(textsOf("OculetValue").at(2), "hsl(200, 50%, 40%)");
}

TEST_F(PreviewPanels, OfferJsonInTwoFormsAndShowNoneOfIt) {
  show("{\"a\": [1, 2]}");

  EXPECT_NE(m_stage.find("OculetJsonView"), nullptr);
  EXPECT_EQ(textsOf("OculetLabel"), (std::vector<std::string>{"Beautified JSON", "Minified JSON"}));
  EXPECT_TRUE(textsOf("OculetValue").empty());
  EXPECT_EQ(textsOf("TextPiece"), std::vector<std::string>{"{\"a\": [1, 2]}"});
}

TEST_F(PreviewPanels, AreAbsentForAPlainText) {
  show("plain");

  for (const char* identifier : {"OculetDateView", "OculetColorView", "OculetJsonView"})
    EXPECT_EQ(m_stage.find(identifier), nullptr) << identifier;
}

TEST_F(PreviewPanels, LineTheirValuesUpBehindLabelsOfOneWidth) {
  show("1700000000");

  const auto labels = m_stage.findAll("OculetLabel");
  const auto values = m_stage.findAll("OculetValue");
  for (std::size_t row = 0; row < 3; ++row) {
    EXPECT_EQ(labels.at(row)->width(), labels.at(0)->width());
    EXPECT_GE(labels.at(row)->width(), labels.at(row)->implicitWidth());
    EXPECT_EQ(values.at(row)->x(), labels.at(0)->width() + 8);
  }
}

TEST_F(PreviewPanels, HaveAnOutlineWithAnOpeningForTheSymbol) {
  show("1700000000");

  QQuickItem* outline = m_stage.find("RectangleWithSymbol");
  QQuickItem* gap = m_stage.find("RectangleGap");
  QQuickItem* symbol = m_stage.find("RectangleSymbol");
  EXPECT_EQ(outline->property("topGapWidth").toReal(), 27);
  EXPECT_EQ(outline->property("lineWidth").toInt(), 2);
  EXPECT_EQ(outline->property("cornerRadius").toInt(), 15);
  EXPECT_EQ(gap->width(), 27);
  EXPECT_EQ(symbol->property("name").toString(), "wand.and.stars");
  EXPECT_EQ(symbol->size(), QSizeF(20, 20));
  EXPECT_NEAR(symbol->mapToItem(outline, QPointF(10, 10)).x(), outline->width() / 2, 0.6);
  EXPECT_EQ(symbol->mapToItem(outline, QPointF(10, 10)).y(), 0);
}

TEST_F(PreviewPanels, CopyTheValueBesideTheButton) {
  show("1700000000");

  press(1);

  EXPECT_EQ(m_stage.copies(), std::vector<std::string>{"2023-11-14T22:13:20Z"});
}

TEST_F(PreviewPanels, CopyByTheChordOfTheButton) {
  show("#ff8000");

  EXPECT_TRUE(m_stage.keyboard().press(quillmonger::quickPasteKeyCodes.at(0), quillmonger::optionFlag));
  m_stage.load();

  EXPECT_EQ(m_stage.copies(),
            std::vector<std::string>{m_stage.findAll("OculetValue").at(0)->property("text").toString().toStdString()});
}

TEST_F(PreviewPanels, TickTheButtonThatHasCopiedWhetherByKeyOrPointer) {
  const auto symbols = [this] {
    std::vector<std::string> names;
    for (QQuickItem* button : m_stage.findAll("CopyButton"))
      names.push_back(button->property("symbol").toString().toStdString());
    return names;
  };
  show("1700000000");
  EXPECT_EQ(symbols(), (std::vector<std::string>{"doc.on.doc", "doc.on.doc", "doc.on.doc"}));

  press(0);
  EXPECT_EQ(symbols(), (std::vector<std::string>{"checkmark", "doc.on.doc", "doc.on.doc"}));

  m_stage.keyboard().press(quillmonger::quickPasteKeyCodes.at(2), quillmonger::optionFlag);
  m_stage.load();
  EXPECT_EQ(symbols(), (std::vector<std::string>{"doc.on.doc", "doc.on.doc", "checkmark"}));
}

TEST_F(PreviewPanels, ShowTheChordsWhileTheirKeyIsHeld) {
  for (const char* text : {"1700000000", "#ff8000", "{\"a\": 1}"}) {
    show(text);
    EXPECT_TRUE(m_stage.findAll("CopyButtonKey").empty()) << text;

    m_stage.setOptionPressed(true);

    const auto keys = textsOf("CopyButtonKey");
    ASSERT_EQ(keys.size(), m_stage.findAll("CopyButton").size()) << text;
    for (std::size_t button = 0; button < keys.size(); ++button)
      EXPECT_EQ(keys.at(button), "Alt+" + std::to_string(button + 1)) << text;
    m_stage.setOptionPressed(false);
  }
}

TEST_F(PreviewPanels, TellTheChordToAssistivePrograms) {
  show("{\"a\": 1}");

  QQuickItem* button = m_stage.findAll("CopyButton").at(1);
  QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(button);
  ASSERT_NE(accessible, nullptr);
  EXPECT_EQ(accessible->text(QAccessible::Name).toStdString(), "Copy Minified JSON");
  EXPECT_EQ(accessible->text(QAccessible::Description).toStdString(), "Alt+2");

  press(1);

  EXPECT_EQ(accessible->text(QAccessible::Description).toStdString(), "Copied");
}

TEST_F(PreviewPanels, CopyJsonAsTheButtonSays) {
  show("{ \"a\" : [1] }");

  press(1);
  press(0);

  ASSERT_EQ(m_stage.copies().size(), 2U);
  EXPECT_EQ(m_stage.copies()[0], "{\"a\":[1]}");
  EXPECT_NE(m_stage.copies()[1].find('\n'), std::string::npos);
  EXPECT_EQ(m_stage.alertCount(), 0);
}

TEST_F(PreviewPanels, CopyASelectedPartOfAValue) {
  show("1700000000");
  select(1, 10);

  EXPECT_TRUE(m_stage.model().copySelection());
  m_stage.load();

  EXPECT_EQ(m_stage.copies(), std::vector<std::string>{"2023-11-14"});
}

TEST_F(PreviewPanels, ShareOneSelectionWithEachOtherAndTheText) {
  show("1700000000");
  const auto selectedOf = [this](std::size_t row) {
    return m_stage.findAll("OculetValue").at(row)->property("selectedText").toString();
  };
  select(0, 4);

  select(1, 10);
  EXPECT_EQ(selectedOf(0), "");
  EXPECT_EQ(selectedOf(1), "2023-11-14");

  m_stage.model().selectAll();
  EXPECT_EQ(selectedOf(1), "");
  EXPECT_FALSE(m_stage.model().selection()->isEmpty());

  select(0, 4);
  EXPECT_TRUE(m_stage.model().selection()->isEmpty());
}

}  // namespace
