#include "Quillmonger/settings/SettingsKeys.h"
#include "tests/Quillmonger/view/SettingsPaneTest.h"

namespace {

namespace keys = quillmonger::keys;

class GeneralPane : public testsupport::SettingsPaneTest {
 protected:
  GeneralPane() : SettingsPaneTest("general") {}

  bool startsAtLogin() { return item("LaunchAtLoginToggle")->property("isOn").toBool(); }
};

TEST_F(GeneralPane, ChoosesASizeOfTheHistoryWithTheMouse) {
  click("HistorySizePicker");
  click("PopUpOption-4");

  EXPECT_EQ(settings()[keys::historySize], 1000);
  EXPECT_EQ(item("HistorySizePicker")->property("selectedTitle").toString(), "1,000 items");
  EXPECT_EQ(item("PopUpMenu"), nullptr);
}

TEST_F(GeneralPane, ChoosesASizeOfTheHistoryWithTheKeyboard) {
  focus("HistorySizePicker");

  press(Qt::Key_Space);
  press(Qt::Key_Down);
  press(Qt::Key_Down);
  press(Qt::Key_Return);

  EXPECT_EQ(settings()[keys::historySize], 200);
  EXPECT_TRUE(item("HistorySizePicker")->hasActiveFocus());
}

TEST_F(GeneralPane, LeavesTheSizeWithEscapeOrAClickElsewhere) {
  focus("HistorySizePicker");

  press(Qt::Key_Down);
  press(Qt::Key_Down);
  press(Qt::Key_Escape);
  EXPECT_EQ(item("PopUpMenu"), nullptr);
  press(Qt::Key_Down);
  QTest::mouseClick(&view(), Qt::LeftButton, {}, QPoint(5, 5));

  EXPECT_EQ(item("PopUpMenu"), nullptr);
  EXPECT_EQ(settings()[keys::historySize], 10);
}

TEST_F(GeneralPane, OffersEverySize) {
  constexpr std::array<std::int64_t, 5> sizes{10, 50, 200, 500, 1000};
  for (std::size_t option = 0; option < sizes.size(); ++option) {
    click("HistorySizePicker");
    click("PopUpOption-" + std::to_string(option));
    EXPECT_EQ(settings()[keys::historySize], sizes.at(option));
  }
}

TEST_F(GeneralPane, ShowsASizeThatItDoesNotOffer) {
  settings().set(keys::historySize, 123);

  EXPECT_EQ(item("HistorySizePicker")->property("selectedTitle").toString(), "123");
}

TEST_F(GeneralPane, ChoosesWhatPastingDoesWithTheMouse) {
  click("OnPasteChoice-1");
  EXPECT_FALSE(settings()[keys::pasteToApp]);

  click("OnPasteChoice-0");
  EXPECT_TRUE(settings()[keys::pasteToApp]);
}

TEST_F(GeneralPane, ChoosesWhatPastingDoesWithTheArrows) {
  focus("OnPasteChoice");

  press(Qt::Key_Down);
  EXPECT_FALSE(settings()[keys::pasteToApp]);
  press(Qt::Key_Down);
  EXPECT_FALSE(settings()[keys::pasteToApp]) << "and stops at the last";
  press(Qt::Key_Up);
  EXPECT_TRUE(settings()[keys::pasteToApp]);
}

TEST_F(GeneralPane, SetsTheVolumeWithTheMouseAndTheKeyboard) {
  clickAt("SoundVolumeSlider", 1);
  EXPECT_FLOAT_EQ(settings()[keys::soundVolume], 1);
  clickAt("SoundVolumeSlider", 0);
  EXPECT_FLOAT_EQ(settings()[keys::soundVolume], 0);

  focus("SoundVolumeSlider");
  press(Qt::Key_Right);
  EXPECT_FLOAT_EQ(settings()[keys::soundVolume], 0.05F);
  press(Qt::Key_End);
  EXPECT_FLOAT_EQ(settings()[keys::soundVolume], 1);
}

TEST_F(GeneralPane, HasASliderOfItsWidth) { EXPECT_EQ(item("SoundVolumeSlider")->width(), 220); }

TEST_F(GeneralPane, HasPickersOfTheirWidth) { EXPECT_EQ(item("HistorySizePicker")->width(), 200); }

TEST_F(GeneralPane, TurnsTheStartAtLoginOnAndOff) {
  click("LaunchAtLoginToggle");
  EXPECT_EQ(m_stage.appService().calls, std::vector<std::string>{"register"});
  EXPECT_TRUE(QTest::qWaitFor([this] { return startsAtLogin(); }));

  click("LaunchAtLoginToggle");
  EXPECT_TRUE(QTest::qWaitFor([this] { return !startsAtLogin(); }));
}

TEST_F(GeneralPane, ShowsTheStartAtLoginAsTheDesktopHoldsIt) {
  m_stage.appService().failure = "refused";

  click("LaunchAtLoginToggle");
  QCoreApplication::processEvents();

  EXPECT_FALSE(startsAtLogin());
}

TEST_F(GeneralPane, BringsTheGuideBackAtTheNextStart) {
  settings().set(keys::firstLaunch, false);

  click("GettingStartedToggle");

  EXPECT_TRUE(settings()[keys::firstLaunch]);
}

TEST_F(GeneralPane, ClearsTheHistoryWhenThatIsConfirmed) {
  click("ClearHistoryButton");
  ASSERT_TRUE(m_stage.alert().isUp());
  EXPECT_EQ(m_stage.clearCount(), 0);

  m_stage.alert().answer(0);

  EXPECT_EQ(m_stage.clearCount(), 1);
}

TEST_F(GeneralPane, ChangesNothingWhenTheAlertIsCancelled) {
  focus("ClearHistoryButton");
  press(Qt::Key_Space);

  m_stage.alert().cancel();

  EXPECT_EQ(m_stage.clearCount(), 0);
}

}  // namespace
