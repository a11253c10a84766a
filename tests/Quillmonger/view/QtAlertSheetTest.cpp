#include "Quillmonger/resources/QtAlertSheet.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QTest>

#include "Quillmonger/resources/Appearance.h"
#include "Quillmonger/resources/QmlModule.h"
#include "tests/gallery/SettingsStage.h"
#include "tests/support/TestDefaults.h"
#include "tests/support/VirtualRunLoop.h"

namespace {

using Role = foundation::AlertSheet::Button::Role;
using Content = foundation::AlertSheet::Content;
using Answers = std::vector<std::size_t>;

class QtAlertSheet : public testing::Test {
 protected:
  QtAlertSheet() {
    quillmonger::resourcesview::registerTypes(m_engine);
    m_parent.show();
  }

  void ask(const Content& content) {
    m_sheet->begin(content, [this](std::size_t button) { m_answers.push_back(button); });
    ASSERT_NE(view(), nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowActive(view()));
  }
  void askToClear() { ask({"Clear?", "All goes.", {{"Clear", Role::destructive}, {"Cancel", Role::cancel}}}); }
  // The question's window while it is up.
  QQuickView* view() {
    for (QWindow* window : QGuiApplication::topLevelWindows()) {
      if (auto* view = qobject_cast<QQuickView*>(window); view != nullptr && view->isVisible()) return view;
    }
    return nullptr;
  }
  QString focusedButton() { return view()->activeFocusItem()->objectName(); }
  const Answers& answersOfALaterTurn() {
    EXPECT_EQ(m_answers, Answers());
    m_runLoop.runPosted();
    return m_answers;
  }

  testsupport::TestDefaults m_defaults;
  quillmonger::Appearance m_appearance{m_defaults.defaults};
  testsupport::VirtualRunLoop m_runLoop;
  QQmlEngine m_engine;
  QWindow m_parent;
  Answers m_answers;
  std::unique_ptr<quillmonger::QtAlertSheet> m_sheet =
      std::make_unique<quillmonger::QtAlertSheet>(quillmonger::QtAlertSheet::Surroundings{
          [this]() -> QQmlEngine& { return m_engine; }, m_appearance, [this] { return &m_parent; }, m_runLoop});
};

TEST_F(QtAlertSheet, BelongsToTheWindowThatAsksAndTakesItsInput) {
  askToClear();

  EXPECT_EQ(view()->transientParent(), &m_parent);
  EXPECT_EQ(view()->modality(), Qt::WindowModal);
  EXPECT_EQ(view()->title(), "Clear?");
}

TEST_F(QtAlertSheet, ChoosesTheStandardButtonByReturn) {
  ask({"Restore?", "", {{"Restore", Role::standard}, {"Cancel", Role::cancel}}});

  QTest::keyClick(view(), Qt::Key_Return);

  EXPECT_EQ(answersOfALaterTurn(), Answers{0});
  EXPECT_EQ(view(), nullptr);
}

TEST_F(QtAlertSheet, LosesNothingByReturn) {
  askToClear();
  EXPECT_EQ(focusedButton(), "AlertButton1");

  QTest::keyClick(view(), Qt::Key_Return);

  EXPECT_EQ(answersOfALaterTurn(), Answers{1});
}

TEST_F(QtAlertSheet, ChoosesTheButtonThatCancelsByEscapeWhereverItStands) {
  ask({"Clear?", "", {{"Cancel", Role::cancel}, {"Clear", Role::destructive}}});

  QTest::keyClick(view(), Qt::Key_Escape);

  EXPECT_EQ(answersOfALaterTurn(), Answers{0});
}

TEST_F(QtAlertSheet, ChoosesItsOnlyButtonByEscape) {
  ask({"Taken", "", {{"OK", Role::standard}}});

  QTest::keyClick(view(), Qt::Key_Escape);

  EXPECT_EQ(answersOfALaterTurn(), Answers{0});
}

TEST_F(QtAlertSheet, KeepsTheKeyboardAmongItsButtons) {
  askToClear();

  QTest::keyClick(view(), Qt::Key_Tab);
  EXPECT_EQ(focusedButton(), "AlertButton0");
  QTest::keyClick(view(), Qt::Key_Tab);
  EXPECT_EQ(focusedButton(), "AlertButton1");
}

TEST_F(QtAlertSheet, ChoosesTheButtonThatIsClicked) {
  askToClear();

  const auto* button = testsupport::find(*view(), "AlertButton0");
  QTest::mouseClick(view(), Qt::LeftButton, {},
                    button->mapToScene(QPointF(button->width() / 2, button->height() / 2)).toPoint());

  EXPECT_EQ(answersOfALaterTurn(), Answers{0});
}

TEST_F(QtAlertSheet, IsCancelledWhenItIsClosed) {
  askToClear();

  view()->close();

  EXPECT_EQ(answersOfALaterTurn(), Answers{1});
}

TEST_F(QtAlertSheet, IsCancelledWhenTheWindowThatAsksGoes) {
  askToClear();

  m_parent.hide();

  EXPECT_EQ(view(), nullptr);
  EXPECT_EQ(answersOfALaterTurn(), Answers{1});
}

TEST_F(QtAlertSheet, CancelsAQuestionThatComesWhileAnotherIsUp) {
  askToClear();
  m_sheet->begin({"Restore?", "", {{"Cancel", Role::cancel}, {"Restore", Role::standard}}},
                 [this](std::size_t button) { m_answers.push_back(button); });

  EXPECT_EQ(view()->title(), "Clear?");
  EXPECT_EQ(answersOfALaterTurn(), Answers{0});
}

TEST_F(QtAlertSheet, MayAskAgainFromItsAnswer) {
  m_sheet->begin({"First?", "", {{"OK", Role::standard}}}, [this](std::size_t) { askToClear(); });
  view()->close();
  m_runLoop.runPosted();

  ASSERT_NE(view(), nullptr);
  EXPECT_EQ(view()->title(), "Clear?");
}

TEST_F(QtAlertSheet, TellsNoAnswerOnceItHasGone) {
  askToClear();
  QTest::keyClick(view(), Qt::Key_Escape);

  m_sheet.reset();

  EXPECT_EQ(answersOfALaterTurn(), Answers());
}

TEST_F(QtAlertSheet, ShowsLongAndStrangeTextsAsTheyAre) {
  const std::string message = std::string(300, 'W') + " <b>not bold</b>";
  ask({message,
       "",
       {{"A button with a text that is far longer than those of the usual questions", Role::standard},
        {"Another one of the kind", Role::cancel}}});

  const auto* text = testsupport::find(*view(), "AlertMessage");
  const auto* button = testsupport::find(*view(), "AlertButton1");
  EXPECT_EQ(text->property("text").toString().toStdString(), message);
  EXPECT_LE(text->property("contentWidth").toDouble(), text->width());
  EXPECT_GE(button->mapToScene(QPointF()).x(), 0);
  EXPECT_GE(button->mapToScene(QPointF()).y(), text->mapToScene(QPointF(0, text->height())).y());
}

}  // namespace
