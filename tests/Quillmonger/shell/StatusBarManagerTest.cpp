#include "Quillmonger/shell/StatusBarManager.h"

#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include "Quillmonger/settings/SettingsKeys.h"
#include "Quillmonger/shell/FallAndBounce.h"
#include "Quillmonger/update/UnconfiguredUpdater.h"
#include "tests/support/FakeApplication.h"
#include "tests/support/FakeMotionPreference.h"
#include "tests/support/FakeStatusBar.h"
#include "tests/support/FakeUpdater.h"
#include "tests/support/TestDefaults.h"
#include "tests/support/VirtualRunLoop.h"

namespace {

using namespace std::chrono_literals;
namespace keys = quillmonger::keys;
using quillmonger::StatusMenuItem;
using Log = std::vector<std::string>;
using Kind = StatusMenuItem::Kind;
using State = StatusMenuItem::State;

constexpr std::size_t aboutEntry = 0;
constexpr std::size_t toggleEntry = 2;
constexpr std::size_t settingsEntry = 3;
constexpr std::size_t updateEntry = 4;
constexpr std::size_t historyHeading = 6;
constexpr std::size_t incognitoEntry = 7;
constexpr std::size_t quitEntry = 9;

class StatusBarManager : public testing::Test {
 protected:
  StatusBarManager() {
    m_updater.onCheck = [this] { m_log.emplace_back("check for updates"); };
  }

  void makeManager() { m_manager = std::make_unique<quillmonger::StatusBarManager>(collaborators()); }
  void setUp() {
    makeManager();
    m_manager->setup();
  }
  quillmonger::StatusBarManager::Collaborators collaborators() {
    return {{logged("show about"), logged("toggle history"), logged("show settings"), logged("dismiss history")},
            m_updater,
            m_bar,
            m_application,
            [](std::string_view key) { return std::string(key); },
            m_motion,
            m_runLoop,
            m_notificationCenter,
            m_settings.defaults};
  }
  std::function<void()> logged(const std::string& what) {
    return [this, what] { m_log.push_back(what); };
  }
  void copy() { m_notificationCenter.post("ItemCopied"); }
  const StatusMenuItem& entry(std::size_t position) { return m_bar.menu().at(position); }
  bool isEnabled(std::size_t position) { return static_cast<bool>(entry(position).action); }

  Log m_log;
  testsupport::FakeMotionPreference m_motion;
  testsupport::VirtualRunLoop m_runLoop;
  foundation::NotificationCenter m_notificationCenter;
  testsupport::TestDefaults m_settings;
  testsupport::FakeUpdater m_updater;
  testsupport::FakeStatusBar m_bar;
  testsupport::FakeApplication m_application{m_log};
  std::unique_ptr<quillmonger::StatusBarManager> m_manager;
};

TEST_F(StatusBarManager, BuildsNoItemBeforeItIsSetUp) {
  makeManager();
  EXPECT_FALSE(m_bar.isItemThere());

  m_manager->setup();

  EXPECT_TRUE(m_bar.isItemThere());
}

TEST_F(StatusBarManager, HasItsEntriesInTheirOrder) {
  setUp();

  std::vector<std::tuple<Kind, std::string, std::string>> entries;
  for (const auto& item : m_bar.menu())
    entries.emplace_back(item.kind, item.title, item.keyEquivalent);

  EXPECT_EQ(entries, (decltype(entries){{Kind::entry, "status_bar_about_button", ""},
                                        {Kind::separator, "", ""},
                                        {Kind::entry, "status_bar_toggle_button", ""},
                                        {Kind::entry, "status_bar_settings_button", ","},
                                        {Kind::entry, "status_bar_updates_button", ""},
                                        {Kind::separator, "", ""},
                                        {Kind::heading, "status_bar_history_literal", ""},
                                        {Kind::entry, "status_bar_incognito_button", ""},
                                        {Kind::separator, "", ""},
                                        {Kind::entry, "status_bar_quit_button", "q"}}));
}

TEST_F(StatusBarManager, TellsItsChordsAsTheUserPressesThemAlsoBeforeItIsSetUp) {
  makeManager();

  std::vector<std::tuple<std::string, std::string, std::uint32_t>> chords;
  for (const auto& item : m_manager->mainMenu())
    if (!item.keyEquivalent.empty())
      chords.emplace_back(item.title, item.keyEquivalent, item.keyEquivalentModifierMask);

  constexpr std::uint32_t controlKey = 0x40000;
  EXPECT_EQ(chords, (decltype(chords){{"status_bar_settings_button", ",", controlKey},
                                      {"status_bar_quit_button", "q", controlKey}}));
}

TEST_F(StatusBarManager, DoesWhatItsEntriesSay) {
  setUp();

  for (const auto position : {aboutEntry, toggleEntry, settingsEntry, quitEntry})
    EXPECT_TRUE(m_bar.choose(position));

  EXPECT_EQ(m_log, (Log{"show about", "toggle history", "show settings", "application terminate"}));
}

TEST_F(StatusBarManager, ShowsTheSettingsOnThePaneLastShownForCommandCommaInTheOpenMenu) {
  setUp();

  EXPECT_TRUE(m_bar.press(","));

  EXPECT_EQ(m_log, Log{"show settings"});
}

TEST_F(StatusBarManager, QuitsForCommandQInTheOpenMenu) {
  setUp();

  EXPECT_TRUE(m_bar.press("q"));

  EXPECT_EQ(m_log, Log{"application terminate"});
}

TEST_F(StatusBarManager, DoesNotLetTheHistoryHeadingBeChosen) {
  setUp();

  EXPECT_FALSE(m_bar.choose(historyHeading));
}

TEST_F(StatusBarManager, GivesOnlyTheIncognitoEntryACheckMark) {
  setUp();

  for (std::size_t position = 0; position < m_bar.menu().size(); ++position)
    EXPECT_EQ(entry(position).state, position == incognitoEntry ? State::off : State::none) << position;
}

TEST_F(StatusBarManager, ShowsTheIncognitoModeThatItFinds) {
  m_settings.defaults.set(keys::isIncognitoMode, true);

  setUp();

  EXPECT_EQ(entry(incognitoEntry).state, State::on);
  EXPECT_EQ(m_bar.image(), "MenuBarImageIncognito");
}

TEST_F(StatusBarManager, TurnsIncognitoOnWithItsCheckMarkAndItsIcon) {
  setUp();
  EXPECT_EQ(m_bar.image(), "MenuBarImage");

  m_bar.choose(incognitoEntry);

  EXPECT_EQ(entry(incognitoEntry).state, State::on);
  EXPECT_TRUE(m_settings.defaults[keys::isIncognitoMode]);
  EXPECT_EQ(m_bar.image(), "MenuBarImageIncognito");
}

TEST_F(StatusBarManager, LeavesTheSettingAndTheIconAsTheyWereWhenIncognitoIsToggledTwice) {
  setUp();

  m_bar.choose(incognitoEntry);
  m_bar.choose(incognitoEntry);

  EXPECT_EQ(entry(incognitoEntry).state, State::off);
  EXPECT_FALSE(m_settings.defaults[keys::isIncognitoMode]);
  EXPECT_EQ(m_bar.image(), "MenuBarImage");
}

TEST_F(StatusBarManager, TogglesWhatTheEntryShowsWhateverTheSettingHasBecome) {
  setUp();
  m_settings.defaults.set(keys::isIncognitoMode, true);
  EXPECT_EQ(entry(incognitoEntry).state, State::off);

  m_bar.choose(incognitoEntry);

  EXPECT_EQ(entry(incognitoEntry).state, State::on);
  EXPECT_TRUE(m_settings.defaults[keys::isIncognitoMode]);
}

TEST_F(StatusBarManager, DisablesTheUpdateEntryWhileTheUpdaterIsBusy) {
  m_updater.canCheckForUpdates().set(true);
  setUp();
  EXPECT_TRUE(isEnabled(updateEntry));

  m_updater.canCheckForUpdates().set(false);
  EXPECT_FALSE(isEnabled(updateEntry));
  m_updater.canCheckForUpdates().set(true);

  EXPECT_TRUE(isEnabled(updateEntry));
  EXPECT_EQ(entry(updateEntry).title, "status_bar_updates_button");
}

TEST_F(StatusBarManager, FollowsAnUpdaterThatChangesBeforeItIsSetUp) {
  makeManager();
  m_updater.canCheckForUpdates().set(true);

  m_manager->setup();

  EXPECT_TRUE(isEnabled(updateEntry));
}

TEST_F(StatusBarManager, NeverEnablesTheUpdateEntryWithoutAFeed) {
  quillmonger::UnconfiguredUpdater updater;
  const auto with = collaborators();
  quillmonger::StatusBarManager manager({with.windows, updater, m_bar, m_application, with.texts, m_motion, m_runLoop,
                                         m_notificationCenter, m_settings.defaults});

  manager.setup();

  EXPECT_FALSE(isEnabled(updateEntry));
}

TEST_F(StatusBarManager, KeepsTheCheckMarkWhenTheUpdaterChanges) {
  setUp();
  m_bar.choose(incognitoEntry);

  m_updater.canCheckForUpdates().set(true);

  EXPECT_EQ(entry(incognitoEntry).state, State::on);
}

TEST_F(StatusBarManager, DismissesTheHistoryBeforeItChecksForUpdates) {
  m_updater.canCheckForUpdates().set(true);
  setUp();

  EXPECT_TRUE(m_bar.choose(updateEntry));

  EXPECT_EQ(m_log, (Log{"dismiss history", "check for updates"}));
}

TEST_F(StatusBarManager, LetsTheIconFallAndBounceInHalfASecondWhenSomethingIsCopied) {
  setUp();

  copy();
  m_runLoop.advance(500ms);

  const auto& offsets = m_bar.offsets();
  ASSERT_EQ(offsets.size(), 13U);
  for (std::size_t frame = 0; frame < offsets.size(); ++frame)
    EXPECT_DOUBLE_EQ(offsets[frame], quillmonger::fallandbounce::offset(static_cast<double>(frame) / 12)) << frame;
}

TEST_F(StatusBarManager, StandsStillAfterTheBounce) {
  setUp();
  copy();
  m_runLoop.advance(500ms);
  m_bar.offsets().clear();

  m_runLoop.advance(10s);

  EXPECT_TRUE(m_bar.offsets().empty());
}

TEST_F(StatusBarManager, BeginsTheFallAnewForASecondCopy) {
  setUp();
  copy();
  m_runLoop.advance(250ms);
  m_bar.offsets().clear();

  copy();
  m_runLoop.advance(10s);

  ASSERT_EQ(m_bar.offsets().size(), 13U) << "the first one no longer runs";
  EXPECT_EQ(m_bar.offsets().front(), 30);
  EXPECT_EQ(m_bar.offsets().back(), 0);
}

TEST_F(StatusBarManager, ChangesNothingAtACopyWithTheAnimationOff) {
  m_settings.defaults.set(keys::animateMenuBar, false);
  setUp();

  copy();
  m_runLoop.advance(1s);

  EXPECT_TRUE(m_bar.offsets().empty());
}

TEST_F(StatusBarManager, ChangesNothingAtACopyWhenTheUserWantsNoMotion) {
  m_motion.setReducesMotion(true);
  setUp();

  copy();
  m_runLoop.advance(1s);

  EXPECT_TRUE(m_bar.offsets().empty());
}

TEST_F(StatusBarManager, LeavesAnItemWithoutAButtonAlone) {
  m_bar.removeButton();
  setUp();

  copy();
  m_bar.choose(incognitoEntry);
  m_runLoop.advance(1s);

  EXPECT_TRUE(m_bar.offsets().empty());
  EXPECT_EQ(m_bar.image(), "");
  EXPECT_TRUE(m_settings.defaults[keys::isIncognitoMode]);
}

TEST_F(StatusBarManager, TakesItsItemAwayAndHearsNothingMoreWhenItGoes) {
  setUp();
  copy();

  m_manager.reset();
  m_bar.offsets().clear();
  copy();
  m_updater.canCheckForUpdates().set(true);
  m_runLoop.advance(1s);

  EXPECT_FALSE(m_bar.isItemThere());
  EXPECT_TRUE(m_bar.offsets().empty());
}

using StatusBarManagerDeathTest = StatusBarManager;

TEST_F(StatusBarManagerDeathTest, StopsTheProcessWhenTheItemIsUsedBeforeItIsSetUp) {
  makeManager();

  EXPECT_DEATH(m_manager->toggleIncognito(), "used before it has been built");
  EXPECT_DEATH(copy(), "used before it has been built");
}

}  // namespace
