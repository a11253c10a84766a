#include <gtest/gtest.h>

#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QTest>

#include "Quillmonger/guide/view/GettingStartedModel.h"
#include "Quillmonger/guide/view/QmlModule.h"
#include "Quillmonger/resources/Appearance.h"
#include "Quillmonger/resources/QmlModule.h"
#include "tests/support/TestDefaults.h"

namespace {

class GettingStartedView : public testing::Test {
 protected:
  GettingStartedView() : m_view(&m_engine, nullptr) {
    quillmonger::resourcesview::registerTypes(m_engine);
    quillmonger::guideview::registerTypes();
    m_view.setInitialProperties(
        {{"model", QVariant::fromValue(&m_model)}, {"appearance", QVariant::fromValue(&m_appearance)}});
    m_view.setSource(QUrl("qrc:/qt-project.org/imports/Quillmonger/Guide/GettingStartedView.qml"));
    m_view.show();
    m_view.requestActivate();
  }

  testsupport::TestDefaults m_defaults;
  quillmonger::Appearance m_appearance{m_defaults.defaults};
  int m_finishCount = 0;
  quillmonger::GettingStartedModel m_model{"Shift+Super+V", [this] { ++m_finishCount; }};
  QQmlEngine m_engine;
  QQuickView m_view;
};

TEST_F(GettingStartedView, NamesTheChord) {
  ASSERT_NE(m_view.rootObject(), nullptr);

  EXPECT_EQ(m_view.rootObject()->findChild<QQuickItem*>("GettingStartedChord")->property("title").toString(),
            "Press Shift+Super+V anywhere");
}

TEST_F(GettingStartedView, NamesTheChordThatIsChosenMeanwhile) {
  m_model.setChord("Ctrl+Alt+J");

  EXPECT_EQ(m_view.rootObject()->findChild<QQuickItem*>("GettingStartedChord")->property("title").toString(),
            "Press Ctrl+Alt+J anywhere");
}

TEST_F(GettingStartedView, EndsWithReturnOrAClick) {
  ASSERT_TRUE(QTest::qWaitFor([this] { return m_view.isActive(); }));
  QTest::keyClick(&m_view, Qt::Key_Return);
  EXPECT_EQ(m_finishCount, 1);

  auto* button = m_view.rootObject()->findChild<QQuickItem*>("GettingStartedFinish");
  QTest::mouseClick(&m_view, Qt::LeftButton, {}, button->mapToScene(button->boundingRect().center()).toPoint());
  EXPECT_EQ(m_finishCount, 2);
}

}  // namespace
