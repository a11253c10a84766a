#include "Quillmonger/shell/Quillmonger.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <string>
#include <vector>

#include "Quillmonger/settings/SettingsKeys.h"
#include "Quillmonger/shell/PermissionsManager.h"
#include "Sauce/Sauce.h"
#include "tests/support/FakeAlert.h"
#include "tests/support/FakeAppPicker.h"
#include "tests/support/FakeApplication.h"
#include "tests/support/FakeApplicationBundles.h"
#include "tests/support/FakeApplicationNaming.h"
#include "tests/support/FakeAudioPlayer.h"
#include "tests/support/FakeBundleProvider.h"
#include "tests/support/FakeHotKeyService.h"
#include "tests/support/FakeInputSourceService.h"
#include "tests/support/FakeLocalEventMonitor.h"
#include "tests/support/FakeMotionPreference.h"
#include "tests/support/FakePasteKeys.h"
#include "tests/support/FakePasteboard.h"
#include "tests/support/FakePostEventAccess.h"
#include "tests/support/FakeSettingsWindowController.h"
#include "tests/support/FakeStatusBar.h"
#include "tests/support/FakeStoreContext.h"
#include "tests/support/FakeSymbolicHotKeys.h"
#include "tests/support/FakeUpdater.h"
#include "tests/support/FakeWindow.h"
#include "tests/support/InlineBackgroundQueue.h"
#include "tests/support/ItemServices.h"
#include "tests/support/Records.h"
#include "tests/support/TestDefaults.h"
#include "tests/support/VirtualRunLoop.h"

namespace {

using namespace std::chrono_literals;
namespace keys = quillmonger::keys;
using quillmonger::KeyEvent;
using Log = std::vector<std::string>;

constexpr testsupport::FakeHotKeyService::Chord activateChord{9, 0x300};
constexpr std::uint16_t commaKey = 43;
constexpr std::uint16_t escapeKey = 53;
constexpr std::uint16_t returnKey = 36;
const Log shown{
    "settings orderOut", "about orderOut", "application activate", "history center", "history makeKeyAndOrderFront",
    "ClipboardActivated"};
const Log dismissed{"history orderOut", "application hide"};
const Log settingsShown{"history orderOut", "preview orderOut", "application activate", "settings show the last pane",
                        "settings makeKeyAndOrderFront"};

// The whole logic, wired as the program wires it, on ports without a desktop.
class QuillmongerTest : public testing::Test {
 protected:
  QuillmongerTest() {
    settings.defaults.set(keys::firstLaunch, false);
    settings.defaults.set(keys::persistHistory, true);
  }

  quillmonger::Quillmonger& makeRoot() {
    root = std::make_unique<quillmonger::Quillmonger>(quillmonger::Quillmonger::Platform{
        runLoop,
        queue,
        notificationCenter,
        settings.defaults,
        shortcuts,
        context,
        pasteboard,
        bundleProvider,
        bundles,
        naming,
        pictures,
        testsupport::englishText,
        permissions,
        sauce,
        pasteKeys,
        eventMonitor,
        application,
        gettingStartedWindow,
        appWindow,
        settingsWindowController,
        aboutWindow,
        updateWindow,
        previewPanel,
        motion,
        picker,
        statusBar,
        updater,
        *foundation::Url::parse("https://example.org/page?action=write-review"),
        [](std::string_view name, std::string_view) { return std::optional(std::string(name)); },
        loudspeaker.factory()});
    settle();
    return *root;
  }
  void start() {
    makeRoot().start();
    settle();
  }
  void startAndShow() {
    start();
    pressChord();
    log.clear();
  }
  void settle() {
    runLoop.runPosted();
    queue.run();
    runLoop.runPosted();
  }
  void pressChord() {
    hotKeys.press(activateChord);
    hotKeys.release(activateChord);
    settle();
  }
  void copy(const std::string& text) {
    pasteboard.copyText(text);
    runLoop.advance(150ms);
    settle();
  }
  std::size_t rowCount() { return root->clipboardViewModel().filteredItems().value()->size(); }
  std::string output(const std::vector<std::string>& urls) {
    testing::internal::CaptureStdout();
    root->openURLs(urls);
    return testing::internal::GetCapturedStdout();
  }

  Log log;
  testsupport::VirtualRunLoop runLoop;
  testsupport::InlineBackgroundQueue queue;
  foundation::NotificationCenter notificationCenter;
  testsupport::TestDefaults settings;
  testsupport::FakeHotKeyService hotKeys;
  testsupport::FakeSymbolicHotKeys symbolicHotKeys;
  keyboardshortcuts::KeyboardShortcuts shortcuts{hotKeys, symbolicHotKeys, settings.suite, notificationCenter};
  testsupport::FakeStoreContext context;
  testsupport::FakePasteboard pasteboard{runLoop};
  testsupport::FakeBundleProvider bundleProvider;
  testsupport::FakeApplicationBundles bundles;
  testsupport::FakeApplicationNaming naming;
  testsupport::FakePictureReading pictures;
  testsupport::FakePostEventAccess access;
  testsupport::FakeAlert alert{quillmonger::Alert::firstButton};
  quillmonger::PermissionsManager permissions{access, alert, testsupport::englishText, [](const foundation::Url&) {},
                                              runLoop};
  testsupport::LatinInputSource inputSources;
  sauce::Sauce sauce{inputSources, notificationCenter};
  testsupport::FakePasteKeys pasteKeys;
  testsupport::FakeLocalEventMonitor eventMonitor;
  testsupport::FakeApplication application{log};
  testsupport::FakeWindow gettingStartedWindow{"guide", log};
  testsupport::FakeWindow appWindow{"history", log};
  testsupport::FakeSettingsWindowController settingsWindowController{log};
  testsupport::FakeWindow aboutWindow{"about", log};
  testsupport::FakeWindow updateWindow{"update", log};
  testsupport::FakePanel previewPanel{"preview", log};
  testsupport::FakeMotionPreference motion;
  testsupport::FakeAppPicker picker;
  testsupport::FakeStatusBar statusBar;
  testsupport::FakeUpdater updater;
  testsupport::FakeLoudspeaker loudspeaker;
  foundation::Subscription activated =
      notificationCenter.observe("ClipboardActivated", [this](const auto&) { log.emplace_back("ClipboardActivated"); });
  std::unique_ptr<quillmonger::Quillmonger> root;
};

TEST_F(QuillmongerTest, ShowsOnlyTheGuideOfAFreshInstallation) {
  settings.defaults.reset(keys::firstLaunch);

  start();
  copy("hello");

  EXPECT_EQ(log, (Log{"application regular", "application activate", "guide center", "guide makeKeyAndOrderFront"}));
  EXPECT_EQ(rowCount(), 0U);
  EXPECT_FALSE(hotKeys.isRegistered(activateChord));
  EXPECT_FALSE(statusBar.isItemThere());
}

TEST_F(QuillmongerTest, ChecksForNoUpdatesBeforeTheGuideIsOver) {
  settings.defaults.set(keys::firstLaunch, true);
  start();
  EXPECT_EQ(updater.startCount, 0);

  root->finishGettingStarted();
  settle();

  EXPECT_EQ(updater.startCount, 1);
}

TEST_F(QuillmongerTest, StartsTheUpdaterInTheNormalStart) {
  start();

  EXPECT_EQ(updater.startCount, 1);
}

TEST_F(QuillmongerTest, HandsTheWayToTheReviewPageToItsWindows) {
  start();

  EXPECT_EQ(root->windowManager().reviewManager().appStoreDeepLink().absoluteString(),
            "https://example.org/page?action=write-review");
}

TEST_F(QuillmongerTest, EndsTheGuideWithTheNormalStartAndTheHistory) {
  settings.defaults.set(keys::firstLaunch, true);
  start();
  log.clear();

  root->finishGettingStarted();
  settle();

  EXPECT_EQ(log, (Log{"guide orderOut", "application accessory", "settings orderOut", "about orderOut",
                      "application activate", "history center", "history makeKeyAndOrderFront", "ClipboardActivated"}));
  EXPECT_FALSE(settings.defaults[keys::firstLaunch]);
  EXPECT_TRUE(hotKeys.isRegistered(activateChord));
}

TEST_F(QuillmongerTest, EndsTheGuideWithTheHistoryAlsoWithoutThePermission) {
  settings.defaults.set(keys::firstLaunch, true);
  access.setAllowed(false);
  start();

  root->finishGettingStarted();
  settle();

  EXPECT_TRUE(appWindow.isVisible());
  EXPECT_FALSE(settings.defaults[keys::firstLaunch]);
}

TEST_F(QuillmongerTest, QuittingTheGuideLeavesFirstLaunchOn) {
  settings.defaults.set(keys::firstLaunch, true);
  start();

  root->quitApp();
  settle();

  EXPECT_EQ(log.back(), "application terminate");
  EXPECT_TRUE(settings.defaults[keys::firstLaunch]);
}

TEST_F(QuillmongerTest, EndsTheGuideOnce) {
  settings.defaults.set(keys::firstLaunch, true);
  start();
  root->finishGettingStarted();
  settle();
  log.clear();

  root->finishGettingStarted();
  settle();

  EXPECT_EQ(log, Log{});
}

TEST_F(QuillmongerTest, ShowsTheGuideInsteadOfTheHistoryUntilItIsOver) {
  settings.defaults.set(keys::firstLaunch, true);
  start();
  log.clear();

  root->show();
  root->toggle();
  settle();

  EXPECT_EQ(log, (Log{"guide center", "guide makeKeyAndOrderFront", "guide center", "guide makeKeyAndOrderFront"}));
}

TEST_F(QuillmongerTest, ShowsAndTogglesTheHistoryOnceTheGuideIsOver) {
  settings.defaults.set(keys::firstLaunch, true);
  start();
  root->finishGettingStarted();
  settle();
  log.clear();

  root->toggle();
  root->show();
  settle();

  EXPECT_EQ(log, (Log{"history orderOut", "application hide", "settings orderOut", "about orderOut",
                      "application activate", "history center", "history makeKeyAndOrderFront", "ClipboardActivated"}));
}

TEST_F(QuillmongerTest, CapturesAtTheGuidesEndWhatWasCopiedMeanwhile) {
  settings.defaults.set(keys::firstLaunch, true);
  start();
  pasteboard.copyText("during the guide");
  pasteboard.advance();

  root->finishGettingStarted();
  runLoop.advance(150ms);
  settle();

  EXPECT_EQ(rowCount(), 1U);
}

TEST_F(QuillmongerTest, StartsNormallyAfterTheGuide) {
  start();

  EXPECT_EQ(log, Log{"application accessory"});
  copy("hello");
  EXPECT_EQ(rowCount(), 1U);
  EXPECT_TRUE(hotKeys.isRegistered(activateChord));
}

TEST_F(QuillmongerTest, ShowsTheGuideAgainWhenItsSettingIsOn) {
  start();
  settings.defaults.set(keys::firstLaunch, true);
  log.clear();

  start();

  EXPECT_EQ(log.front(), "application regular");
}

TEST_F(QuillmongerTest, DeletesTheLastRunsHistoryUnlessItPersists) {
  settings.defaults.set(keys::persistHistory, false);
  context.insert(testsupport::makeRecord("last run"));

  start();

  EXPECT_TRUE(context.records().empty());
  EXPECT_EQ(rowCount(), 0U);
}

TEST_F(QuillmongerTest, LoadsAPersistentHistoryAndAppliesItsLimit) {
  for (int age = 0; age < 12; ++age)
    context.insert(testsupport::makeRecord(std::to_string(age), foundation::Seconds(age)));

  start();
  EXPECT_EQ(rowCount(), 12U);
  runLoop.advance(500ms);
  settle();

  EXPECT_EQ(rowCount(), 10U);
  EXPECT_EQ(context.records().size(), 10U);
}

TEST_F(QuillmongerTest, DeletesNothingWhileTheGuideIsUp) {
  settings.defaults.set(keys::firstLaunch, true);
  settings.defaults.set(keys::persistHistory, false);
  context.insert(testsupport::makeRecord("last run"));

  start();

  EXPECT_EQ(context.records().size(), 1U);
}

TEST_F(QuillmongerTest, ShowsAndHidesTheHistoryWhenTheChordIsReleased) {
  start();
  log.clear();

  hotKeys.press(activateChord);
  settle();
  EXPECT_EQ(log, Log{});
  hotKeys.release(activateChord);
  settle();
  EXPECT_EQ(log, shown);
  log.clear();
  pressChord();

  EXPECT_EQ(log, dismissed);
}

TEST_F(QuillmongerTest, OpensTheHistoryUnfilteredWithItsTopRowSelected) {
  start();
  copy("apple");
  copy("pear");
  root->searchViewModel().searchTerm().set("apple");
  runLoop.advance(1s);
  settle();
  ASSERT_EQ(rowCount(), 1U);
  root->clipboardViewModel().isOptionPressed().set(true);

  pressChord();

  EXPECT_EQ(root->searchViewModel().searchTerm().value(), "");
  EXPECT_EQ(rowCount(), 2U);
  EXPECT_FALSE(root->clipboardViewModel().isOptionPressed().value());
  EXPECT_EQ(root->clipboardViewModel().selectedItem().value()->text().view, "pear");
}

TEST_F(QuillmongerTest, SelectsTheTopRowOfTheOldListAtOnce) {
  start();
  copy("one");
  copy("two");
  root->clipboardViewModel().select(root->clipboardViewModel().filteredItems().value()->at(1).item->shared_from_this());

  root->windowManager().showAppWindow();
  runLoop.runPosted();

  EXPECT_EQ(root->clipboardViewModel().selectedItem().value()->text().view, "two") << "before the search is done";
}

TEST_F(QuillmongerTest, ChangesNothingWhenAVisibleHistoryIsShown) {
  startAndShow();
  root->searchViewModel().searchTerm().set("term");

  root->windowManager().showAppWindow();
  settle();

  EXPECT_EQ(log, Log{});
  EXPECT_EQ(root->searchViewModel().searchTerm().value(), "term");
}

TEST_F(QuillmongerTest, LeavesTheGuideAloneWhenTheHistoryIsShown) {
  start();
  root->windowManager().showGettingStartedWindow();

  root->windowManager().showAppWindow();
  settle();

  EXPECT_TRUE(gettingStartedWindow.isVisible());
}

TEST_F(QuillmongerTest, HidesTheHistoryForEscape) {
  startAndShow();

  EXPECT_TRUE(eventMonitor.press(escapeKey));

  EXPECT_EQ(log, dismissed);
}

TEST_F(QuillmongerTest, HidesTheHistoryWhenTheProgramLosesTheFront) {
  startAndShow();

  root->applicationDidResignActive();

  EXPECT_EQ(log, dismissed);
}

TEST_F(QuillmongerTest, KeepsItsWindowsWhenItLosesTheFrontBesideTheGuide) {
  startAndShow();
  root->windowManager().showGettingStartedWindow();
  log.clear();

  root->applicationDidResignActive();

  EXPECT_EQ(log, Log{});
  EXPECT_TRUE(root->windowManager().isAuxiliaryWindowVisible());
}

TEST_F(QuillmongerTest, ShowsTheSettingsInsteadOfTheHistoryForControlAndComma) {
  startAndShow();

  EXPECT_TRUE(eventMonitor.press(commaKey, quillmonger::commandFlag));

  EXPECT_EQ(log, settingsShown);
}

TEST_F(QuillmongerTest, ShowsTheSettingsAlsoWithoutTheHistory) {
  start();
  log.clear();

  root->showSettings();

  EXPECT_EQ(log, settingsShown);
}

TEST_F(QuillmongerTest, ShowsTheSettingsBeforeTheGuideIsOver) {
  settings.defaults.set(keys::firstLaunch, true);
  start();
  log.clear();

  root->showSettings();

  EXPECT_EQ(log, settingsShown);
  EXPECT_TRUE(gettingStartedWindow.isVisible());
}

TEST_F(QuillmongerTest, ClosesTheSettingsAndShowsTheHistoryForTheChord) {
  start();
  root->showSettings();
  log.clear();

  pressChord();

  EXPECT_EQ(log, shown);
  EXPECT_FALSE(settingsWindowController.window().isVisible());
}

TEST_F(QuillmongerTest, KeepsTheSettingsWhenTheUserGoesToAnotherApplication) {
  start();
  root->showSettings();
  log.clear();

  root->applicationDidResignActive();

  EXPECT_EQ(log, Log{});
  EXPECT_TRUE(root->windowManager().isAuxiliaryWindowVisible());
}

TEST_F(QuillmongerTest, HidesTheWholeApplicationForEscapeWhileTheSettingsHaveTheKeyboard) {
  start();
  root->showSettings();
  log.clear();

  EXPECT_TRUE(eventMonitor.press(escapeKey));

  EXPECT_EQ(log, dismissed);
}

TEST_F(QuillmongerTest, DropsCopiesOfAnApplicationFromTheMomentThatItIsIgnored) {
  const std::string editor = "file:///usr/share/applications/org.example.Editor.desktop";
  bundles.add(editor, {"org.example.Editor", "Editor"});
  bundleProvider.setFrontmostBundle({"org.example.Editor", foundation::Url::parse(editor)});
  start();
  copy("before");

  root->ignoreAppsViewModel().addApp();
  picker.decide(foundation::Url::parse(editor));
  copy("ignored");
  EXPECT_EQ(rowCount(), 1U);

  root->ignoreAppsViewModel().removeApp(*root->ignoreAppsViewModel().selectedApp().value());
  copy("after");
  EXPECT_EQ(rowCount(), 2U);
}

TEST_F(QuillmongerTest, CountsTheHistoryAsNoAuxiliaryWindow) {
  startAndShow();

  EXPECT_FALSE(root->windowManager().isAuxiliaryWindowVisible());
}

TEST_F(QuillmongerTest, PutsTheItemOnThePasteboardHidesAndPressesThePasteKeys) {
  start();
  copy("hello");
  pressChord();
  log.clear();

  eventMonitor.press(returnKey);
  settle();

  EXPECT_EQ(log, dismissed);
  EXPECT_EQ(pasteboard.writes().size(), 1U);
  EXPECT_EQ(pasteKeys.postedCount(), 1);
  EXPECT_EQ(context.records().at(0)->timesPasted(), 1);
}

TEST_F(QuillmongerTest, CountsEachPasteOfItsLife) {
  start();
  copy("hello");

  eventMonitor.press(returnKey);
  settle();
  eventMonitor.press(returnKey);
  settle();

  EXPECT_EQ(settings.defaults[keys::numberOfPastes], 2);
}

TEST_F(QuillmongerTest, ShowsItsStatusItemFromTheNormalStartOn) {
  start();

  EXPECT_TRUE(statusBar.isItemThere());
  EXPECT_EQ(statusBar.image(), "MenuBarImage");
}

TEST_F(QuillmongerTest, ShowsItsWindowsFromTheStatusMenu) {
  start();
  log.clear();

  statusBar.choose(2);
  settle();
  EXPECT_EQ(log, shown);
  log.clear();
  statusBar.choose(2);
  EXPECT_EQ(log, dismissed);
  log.clear();
  statusBar.press(",");
  EXPECT_EQ(log, settingsShown);
  log.clear();
  statusBar.choose(0);

  EXPECT_TRUE(aboutWindow.isVisible());
}

TEST_F(QuillmongerTest, KeepsNothingWhileTheStatusMenuSaysIncognito) {
  start();

  statusBar.choose(7);
  copy("secret");

  EXPECT_EQ(rowCount(), 0U);
}

TEST_F(QuillmongerTest, LetsACopyBeSeenAndHeard) {
  start();

  copy("hello");

  EXPECT_FALSE(statusBar.offsets().empty());
  ASSERT_EQ(loudspeaker.sounds().size(), 1U);
  EXPECT_EQ(loudspeaker.sounds()[0].place, "air_pump_06");
}

TEST_F(QuillmongerTest, PlaysTheActivationSoundWhenTheHistoryOpens) {
  start();

  pressChord();

  ASSERT_EQ(loudspeaker.sounds().size(), 1U);
  EXPECT_EQ(loudspeaker.sounds()[0].place, "air_pump_short");
}

TEST_F(QuillmongerTest, ShowsNothingOnceItIsGone) {
  start();
  root->windowManager().showAppWindow();
  log.clear();

  root.reset();
  runLoop.runPosted();
  pressChord();

  EXPECT_EQ(log, Log{});
}

TEST_F(QuillmongerTest, SavesTheStoreAtItsEndAndSaysWhyItCant) {
  start();
  root->saveChanges();
  EXPECT_EQ(context.saves(), 1);
  context.failSaves(foundation::Error{"disk on fire"});
  testing::internal::CaptureStdout();

  root->saveChanges();

  EXPECT_EQ(testing::internal::GetCapturedStdout(), "unable to save context changes: disk on fire\n");
}

TEST_F(QuillmongerTest, EndsTheApplicationToQuit) {
  start();
  log.clear();

  root->quitApp();

  EXPECT_EQ(log, Log{"application terminate"});
}

TEST_F(QuillmongerTest, TellsEachUrlAndDoesNothingElse) {
  start();
  log.clear();

  EXPECT_EQ(output({"https://example.org/", "quillmonger://open/x", "quillmonger:x"}),
            "application start url = https://example.org/\n"
            "unknown url scheme: Optional(\"https\")\n"
            "application start url = quillmonger://open/x\n"
            "unknown url action: Optional(\"open\")\n"
            "application start url = quillmonger:x\n"
            "unknown url action: nil\n");
  EXPECT_EQ(log, Log{});
}

TEST_F(QuillmongerTest, TellsUrlsThatAreNone) {
  start();

  EXPECT_EQ(output({"no scheme", "quillmonger://%zz"}),
            "application start url = no%20scheme\n"
            "unknown url scheme: nil\n"
            "application start url = quillmonger://%zz\n"
            "invalid url: quillmonger://%zz\n");
}

TEST_F(QuillmongerTest, LetsNoUrlWriteALineOfItsOwn) {
  start();

  const auto lines = output({"x:\nforged = " + std::string(100000, 'x')});

  EXPECT_EQ(std::count(lines.begin(), lines.end(), '\n'), 2);
  EXPECT_LT(lines.size(), 8192U);
}

TEST_F(QuillmongerTest, WithoutThePermissionThePasteEndsWithTheItemOnThePasteboardAndTheHistoryHidden) {
  access.setAllowed(false);
  startAndShow();
  copy("kept");
  int succeededCount = 0;
  const auto hold = notificationCenter.observe("PasteSucceeded", [&](const auto&) { ++succeededCount; });
  log.clear();

  eventMonitor.press(returnKey);
  settle();

  EXPECT_EQ(log, dismissed);
  EXPECT_EQ(pasteKeys.postedCount(), 0);
  EXPECT_EQ(succeededCount, 0);
  EXPECT_EQ(access.requestCount(), 1);
}

}  // namespace
