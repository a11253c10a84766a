#include "Quillmonger/settings/view/AppPickerWindow.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QQmlEngine>
#include <QQuickView>
#include <QTest>

#include "Quillmonger/history/view/ImageCache.h"
#include "Quillmonger/resources/QmlModule.h"
#include "Quillmonger/settings/view/QmlModule.h"
#include "tests/support/FakeInstalledApplications.h"
#include "tests/support/InlineBackgroundQueue.h"
#include "tests/support/TestDefaults.h"
#include "tests/support/VirtualRunLoop.h"

namespace {

class AppPickerWindow : public testing::Test {
 protected:
  AppPickerWindow() {
    quillmonger::resourcesview::registerTypes(m_engine);
    quillmonger::settingsview::registerTypes();
    m_engine.addImageProvider(QStringLiteral("appicon"),
                              new quillmonger::ImageCache([](const std::string&) { return std::nullopt; }));
    m_installed.install("org.example.Mail", "Mail");
    m_parent.show();
  }

  void pick() {
    m_picker->pickApplication(
        [this](const auto& url) { m_answers.push_back(url ? url->absoluteString() : std::string()); });
  }
  // The picker's window while it is up.
  QQuickView* view() {
    for (QWindow* window : QGuiApplication::topLevelWindows()) {
      if (auto* view = qobject_cast<QQuickView*>(window); view != nullptr && view->isVisible()) return view;
    }
    return nullptr;
  }
  void load() {
    m_queue.run();
    m_runLoop.runPosted();
  }

  testsupport::TestDefaults m_defaults;
  quillmonger::Appearance m_appearance{m_defaults.defaults};
  testsupport::FakeInstalledApplications m_installed;
  testsupport::InlineBackgroundQueue m_queue;
  testsupport::VirtualRunLoop m_runLoop;
  QQmlEngine m_engine;
  QWindow m_parent;
  std::vector<std::string> m_answers;
  std::unique_ptr<quillmonger::AppPickerWindow> m_picker = std::make_unique<quillmonger::AppPickerWindow>(
      quillmonger::AppPickerWindow::Surroundings{{m_installed, m_queue, m_runLoop},
                                                 m_appearance,
                                                 [this]() -> QQmlEngine& { return m_engine; },
                                                 [this] { return &m_parent; },
                                                 [] { return std::string(); }});
};

using Answers = std::vector<std::string>;

TEST_F(AppPickerWindow, BelongsToTheWindowThatAsksAndTakesItsInput) {
  pick();

  ASSERT_NE(view(), nullptr);
  EXPECT_EQ(view()->transientParent(), &m_parent);
  EXPECT_EQ(view()->modality(), Qt::WindowModal);
  EXPECT_EQ(view()->title(), "Choose an Application");
}

TEST_F(AppPickerWindow, GivesTheChosenApplicationInALaterTurnAndGoes) {
  pick();
  load();
  ASSERT_TRUE(QTest::qWaitForWindowActive(view()));

  QTest::keyClick(view(), Qt::Key_Return);
  EXPECT_EQ(view(), nullptr);
  EXPECT_EQ(m_answers, Answers{});
  m_runLoop.runPosted();

  EXPECT_EQ(m_answers, Answers{"file:///usr/share/applications/org.example.Mail.desktop"});
}

TEST_F(AppPickerWindow, GivesNoneWhenItsFrameClosesIt) {
  pick();

  view()->close();
  m_runLoop.runPosted();

  EXPECT_EQ(m_answers, Answers{""});
}

TEST_F(AppPickerWindow, GoesWithTheWindowThatAsked) {
  pick();

  m_parent.hide();
  m_runLoop.runPosted();

  EXPECT_EQ(view(), nullptr);
  EXPECT_EQ(m_answers, Answers{""});
}

TEST_F(AppPickerWindow, GivesNoneForACallWhileItIsUp) {
  pick();
  pick();

  m_runLoop.runPosted();

  EXPECT_EQ(m_answers, Answers{""});
  EXPECT_NE(view(), nullptr);
}

TEST_F(AppPickerWindow, CanBeShownAgainFromWithinTheAnswer) {
  m_picker->pickApplication([this](const auto&) { pick(); });
  view()->close();

  m_runLoop.runPosted();

  EXPECT_NE(view(), nullptr);
}

TEST_F(AppPickerWindow, GivesNoAnswerAfterItsEnd) {
  pick();
  m_picker.reset();
  EXPECT_EQ(view(), nullptr);

  load();

  EXPECT_EQ(m_answers, Answers{});
}

}  // namespace
