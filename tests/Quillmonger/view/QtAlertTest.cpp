#include "Quillmonger/shell/view/QtAlert.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QTest>
#include <QTimer>

#include "Quillmonger/resources/Appearance.h"
#include "Quillmonger/resources/QmlModule.h"
#include "tests/gallery/ViewStage.h"
#include "tests/support/TestDefaults.h"

namespace {

class QtAlert : public testing::Test {
 protected:
  QtAlert() { quillmonger::resourcesview::registerTypes(m_engine); }

  // Shows the alert, and does `step` to its window as soon as that is active.
  int answerTo(const std::function<void(QQuickView&)>& step) {
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, [&poll, &step] {
      for (QWindow* window : QGuiApplication::topLevelWindows()) {
        auto* view = qobject_cast<QQuickView*>(window);
        if (view == nullptr || !view->isActive()) continue;
        poll.stop();
        step(*view);
        return;
      }
    });
    poll.start(1);
    return m_alert.runModal({"Something went wrong", "It can't go on. <b>ERR-001</b>", {"Write", "Cancel"}});
  }

  testsupport::TestDefaults m_defaults;
  quillmonger::Appearance m_appearance{m_defaults.defaults};
  QQmlEngine m_engine;
  quillmonger::QtAlert m_alert{[this]() -> QQmlEngine& { return m_engine; }, m_appearance};
};

TEST_F(QtAlert, GivesTheFirstAnswerForReturn) {
  EXPECT_EQ(answerTo([](QQuickView& view) { QTest::keyClick(&view, Qt::Key_Return); }), 1000);
}

TEST_F(QtAlert, GivesTheLastAnswerForEscape) {
  EXPECT_EQ(answerTo([](QQuickView& view) { QTest::keyClick(&view, Qt::Key_Escape); }), 1001);
}

TEST_F(QtAlert, GivesTheLastAnswerWhenItIsClosed) {
  EXPECT_EQ(answerTo([](QQuickView& view) { view.close(); }), 1001);
}

TEST_F(QtAlert, GivesTheAnswerOfTheButtonThatWasClicked) {
  EXPECT_EQ(answerTo([](QQuickView& view) {
              view.grabWindow();
              std::vector<QQuickItem*> buttons;
              testsupport::collect(view.rootObject(), "AlertButton1", buttons);
              const QRectF place = buttons.at(0)->boundingRect();
              QTest::mouseClick(&view, Qt::LeftButton, {}, buttons.at(0)->mapToScene(place.center()).toPoint());
            }),
            1001);
}

TEST_F(QtAlert, ShowsItsTextsAsTheyAre) {
  QString shown;
  static_cast<void>(answerTo([&shown](QQuickView& view) {
    const auto* text = view.rootObject()->findChild<QQuickItem*>("AlertInformativeText");
    shown = text->property("text").toString() + text->property("textFormat").toString();
    view.close();
  }));

  EXPECT_EQ(shown, QStringLiteral("It can't go on. <b>ERR-001</b>PlainText"));
}

}  // namespace
