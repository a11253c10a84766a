#include <gtest/gtest.h>

#include <QAccessible>
#include <QTest>

#include "Quillmonger/update/view/UpdateWindow.h"
#include "tests/gallery/SettingsStage.h"
#include "tests/gallery/UpdateStage.h"
#include "tests/support/FakeUpdateService.h"
#include "tests/support/FakeWindow.h"

namespace {

using quillmonger::UpdateStatus;
using testsupport::find;
using testsupport::updateTo;
using Answer = testsupport::UpdateStage::Answer;
using Answers = std::vector<Answer>;
using Stage = UpdateStatus::Stage;

const UpdateStatus available{.stage = Stage::available, .update = updateTo("2.0")};

std::string notesOf(int lines) {
  std::string notes;
  for (int line = 0; line < lines; ++line)
    notes += "A line of notes\n";
  return notes;
}

class UpdateView : public testing::Test {
 protected:
  QQuickView& activated(const UpdateStatus& status) {
    auto& view = m_stage.show(status);
    view.requestActivate();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
    return view;
  }
  static QString textOf(QQuickView& view, const char* identifier) {
    return find(view, QLatin1String(identifier))->property("text").toString();
  }
  static void click(QQuickView& view, const char* identifier) {
    const auto* button = find(view, QLatin1String(identifier));
    QTest::mouseClick(&view, Qt::LeftButton, {}, button->mapToScene(button->boundingRect().center()).toPoint());
  }

  testsupport::UpdateStage m_stage;
};

TEST_F(UpdateView, ShowsTheVersionAndItsNotes) {
  auto& view = m_stage.show(available);

  EXPECT_EQ(textOf(view, "UpdateHeading"), "Quillmonger 2.0 is available");
  EXPECT_EQ(textOf(view, "UpdateMessage"), "You have version 1.2.3. This is new:");
  EXPECT_EQ(textOf(view, "UpdateNotes"), "What is new in 2.0");
  EXPECT_EQ(find(view, "UpdateProgress"), nullptr);
}

TEST_F(UpdateView, GivesTheAnswerOfEachButton) {
  auto& view = m_stage.show(available);

  for (const char* button : {"UpdateButton0", "UpdateButton1", "UpdateButton2"})
    click(view, button);

  EXPECT_EQ(m_stage.answers(), (Answers{Answer::download, Answer::close, Answer::skip}));
}

TEST_F(UpdateView, TakesReturnForTheDefaultAnswer) {
  auto& view = activated(available);

  QTest::keyClick(&view, Qt::Key_Return);

  EXPECT_EQ(m_stage.answers(), Answers{Answer::download});
}

TEST_F(UpdateView, TakesEscapeForClosing) {
  auto& view = activated(available);

  QTest::keyClick(&view, Qt::Key_Escape);

  EXPECT_EQ(m_stage.answers(), Answers{Answer::close});
}

TEST_F(UpdateView, TakesTheDesktopsWayToCloseForClosing) {
  auto& view = activated(available);

  view.close();

  EXPECT_EQ(m_stage.answers(), Answers{Answer::close});
}

TEST_F(UpdateView, KeepsItsKeysFromTheHistory) {
  auto& view = m_stage.show(available);
  const auto keysOf = [](const QObject* item) { return item->property("ownKeys").toList(); };

  EXPECT_EQ(keysOf(view.rootObject()), QVariantList{int{Qt::Key_Escape}});
  EXPECT_EQ(keysOf(find(view, "UpdateButton0")), QVariantList{int{Qt::Key_Return}});
  EXPECT_EQ(keysOf(find(view, "UpdateNotes")), (QVariantList{int{Qt::Key_Up}, int{Qt::Key_Down}}));
}

TEST_F(UpdateView, ReachesEachButtonWithTheTabKey) {
  auto& view = activated(available);

  for (int index = 0; index < 3; ++index) {
    QTest::keyClick(&view, Qt::Key_Space);
    QTest::keyClick(&view, Qt::Key_Tab);
  }

  EXPECT_EQ(m_stage.answers(), (Answers{Answer::download, Answer::close, Answer::skip}));
}

TEST_F(UpdateView, ShowsProgressWhileSomethingIsUnderWay) {
  auto& view = m_stage.show({.stage = Stage::downloading, .update = updateTo("2.0"), .received = 500});

  ASSERT_NE(find(view, "UpdateProgress"), nullptr);
  EXPECT_EQ(find(view, "UpdateProgress")->property("value").toDouble(), 0.5);
  EXPECT_EQ(find(view, "UpdateNotes"), nullptr);
}

TEST_F(UpdateView, KeepsTheKeyboardOnItsButtonWhileTheDownloadGoesOn) {
  auto& view = activated({.stage = Stage::downloading, .update = updateTo("2.0")});
  const auto* button = find(view, "UpdateButton0");

  m_stage.show({.stage = Stage::downloading, .update = updateTo("2.0"), .received = 500});

  EXPECT_EQ(find(view, "UpdateButton0"), button);
  EXPECT_TRUE(button->hasActiveFocus());
}

TEST_F(UpdateView, GivesTheKeyboardToTheButtonsThatCome) {
  auto& view = activated({.stage = Stage::checking});

  m_stage.show(available);
  QTest::keyClick(&view, Qt::Key_Return);

  EXPECT_EQ(m_stage.answers(), Answers{Answer::download});
}

TEST_F(UpdateView, ScrollsLongNotesByKeyboard) {
  auto update = updateTo("2.0");
  update.notes = notesOf(200);
  auto& view = activated({.stage = Stage::available, .update = update});
  auto* notes = find(view, "UpdateNotes");
  const auto* area = notes->childItems().first();
  notes->forceActiveFocus(Qt::TabFocusReason);

  QTest::keyClick(&view, Qt::Key_PageDown);
  QTest::keyClick(&view, Qt::Key_Down);
  EXPECT_EQ(area->property("contentY").toDouble(), area->height() + 40);
  QTest::keyClick(&view, Qt::Key_PageUp);
  QTest::keyClick(&view, Qt::Key_Up);
  QTest::keyClick(&view, Qt::Key_Up);

  EXPECT_EQ(area->property("contentY").toDouble(), 0);
}

TEST_F(UpdateView, IsAsHighAsItsContentButNeverHigherThanAScreen) {
  const int bare = m_stage.show({.stage = Stage::upToDate}).height();
  auto update = updateTo("2.0");
  update.notes = notesOf(1000);

  const int full = m_stage.show({.stage = Stage::available, .update = update}).height();

  EXPECT_GT(full, bare);
  EXPECT_LT(full, 500);
}

TEST_F(UpdateView, TellsAssistiveToolsWhatItIs) {
  auto& view = m_stage.show({.stage = Stage::downloading, .update = updateTo("2.0"), .received = 500});
  const auto roleOf = [](QObject* object) { return QAccessible::queryAccessibleInterface(object)->role(); };

  EXPECT_EQ(roleOf(view.rootObject()), QAccessible::Dialog);
  EXPECT_EQ(roleOf(find(view, "UpdateProgress")), QAccessible::ProgressBar);
  EXPECT_EQ(roleOf(find(view, "UpdateButton0")), QAccessible::Button);
  EXPECT_EQ(QAccessible::queryAccessibleInterface(view.rootObject())->text(QAccessible::Name),
            "Downloading Quillmonger 2.0");
}

TEST_F(UpdateView, TakesNoMarkupFromTheNotes) {
  auto update = updateTo("2.0");
  update.notes = "<b>not bold</b>";

  auto& view = m_stage.show({.stage = Stage::available, .update = update});

  EXPECT_EQ(textOf(view, "UpdateNotes"), "<b>not bold</b>");
}

TEST(UpdateWindow, ComesToTheFrontForAUserWhoAsked) {
  testsupport::FakePanel::Log log;
  testsupport::FakePanel panel("update", log);
  quillmonger::UpdateModel model("1.0");
  quillmonger::UpdateWindow window(model, panel);

  window.show(quillmonger::UpdateInterface::Attention::front);

  EXPECT_EQ(log, (testsupport::FakePanel::Log{"update center", "update makeKeyAndOrderFront"}));
}

TEST(UpdateWindow, LeavesTheKeyboardToAUserWhoDidNotAsk) {
  testsupport::FakePanel::Log log;
  testsupport::FakePanel panel("update", log);
  quillmonger::UpdateModel model("1.0");
  quillmonger::UpdateWindow window(model, panel);

  window.show(quillmonger::UpdateInterface::Attention::aside);

  EXPECT_EQ(log, (testsupport::FakePanel::Log{"update center", "update orderFront"}));
}

TEST(UpdateWindow, StaysWhereTheUserHasPutIt) {
  testsupport::FakePanel::Log log;
  testsupport::FakePanel panel("update", log);
  quillmonger::UpdateModel model("1.0");
  quillmonger::UpdateWindow window(model, panel);
  window.show(quillmonger::UpdateInterface::Attention::front);
  log.clear();

  window.show(quillmonger::UpdateInterface::Attention::front);

  EXPECT_EQ(log, testsupport::FakePanel::Log{"update makeKeyAndOrderFront"});
}

}  // namespace
