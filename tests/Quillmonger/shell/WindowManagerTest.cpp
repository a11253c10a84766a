#include "Quillmonger/shell/WindowManager.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "tests/support/FakeApplication.h"
#include "tests/support/FakeHotKeyService.h"
#include "tests/support/FakeLocalEventMonitor.h"
#include "tests/support/FakeMotionPreference.h"
#include "tests/support/FakeSettingsWindowController.h"
#include "tests/support/FakeStoreContext.h"
#include "tests/support/FakeSymbolicHotKeys.h"
#include "tests/support/FakeWindow.h"
#include "tests/support/InlineBackgroundQueue.h"
#include "tests/support/ItemServices.h"
#include "tests/support/VirtualRunLoop.h"

namespace {

using namespace std::chrono_literals;
using quillmonger::Action;
using quillmonger::WindowFrame;
using Log = std::vector<std::string>;
using Manager = quillmonger::WindowManager;

constexpr std::uint16_t escapeKey = 53;
constexpr std::uint16_t commaKey = 43;
constexpr WindowFrame historyFrame{660, 700, 600, 445};
const Log shown{
    "settings orderOut", "about orderOut", "application activate", "history center", "history makeKeyAndOrderFront",
    "ClipboardActivated"};
const Log dismissed{"history orderOut", "application hide"};

// The windows on ports without a screen, with a real history and search behind them.
class WindowManager : public testing::Test, protected testsupport::ItemServices {
 protected:
  WindowManager() {
    settle();
    appWindow.place(historyFrame, 3);
    previewPanel.place({0, 445, 600, 445}, 3);
    manager = std::make_unique<Manager>(Manager::Collaborators{
        viewModel, searchViewModel, gettingStartedWindow, appWindow, settingsController, aboutWindow, updateWindow,
        previewPanel, reviewManager, motion, application, eventMonitor, runLoop, notificationCenter});
  }

  void settle() {
    runLoop.runPosted();
    queue.run();
    runLoop.runPosted();
  }
  bool press(std::uint16_t keyCode, std::uint32_t flags = 0) {
    const bool isSwallowed = eventMonitor.press(keyCode, flags);
    settle();
    return isSwallowed;
  }
  void show() {
    manager->showAppWindow();
    settle();
    log.clear();
  }
  void showWithPreview() {
    show();
    manager->togglePreviewWindow();
    runLoop.advance(350ms);
    log.clear();
  }

  Log log;
  testsupport::VirtualRunLoop runLoop;
  testsupport::InlineBackgroundQueue queue;
  testsupport::FakeStoreContext context;
  testsupport::FakeLocalEventMonitor eventMonitor;
  testsupport::FakeHotKeyService hotKeys;
  testsupport::FakeSymbolicHotKeys symbolicHotKeys;
  foundation::NotificationCenter notificationCenter;
  keyboardshortcuts::KeyboardShortcuts shortcuts{hotKeys, symbolicHotKeys, settings.suite, notificationCenter};
  quillmonger::SearchViewModel searchViewModel{runLoop, settings.defaults};
  quillmonger::SearchManager<quillmonger::ClipboardItemViewModel> searchManager{queue, runLoop, settings.defaults};
  quillmonger::ClipboardViewModel viewModel{{clipboard, context, searchViewModel, searchManager, naming, oculetManager,
                                             pictures, testsupport::englishText, eventMonitor, shortcuts, runLoop,
                                             notificationCenter, settings.defaults}};
  testsupport::FakeWindow gettingStartedWindow{"guide", log};
  testsupport::FakeWindow appWindow{"history", log};
  testsupport::FakeSettingsWindowController settingsController{log};
  testsupport::FakeWindow aboutWindow{"about", log};
  testsupport::FakeWindow updateWindow{"update", log};
  quillmonger::AppStoreReviewManager reviewManager{*foundation::Url::parse("https://example.org/?action=write-review")};
  testsupport::FakePanel previewPanel{"preview", log};
  testsupport::FakeMotionPreference motion;
  testsupport::FakeApplication application{log};
  std::unique_ptr<Manager> manager;
  foundation::Subscription activated = notificationCenter.observe("ClipboardActivated", [this](const auto& told) {
    log.emplace_back(told.object == manager.get() ? "ClipboardActivated" : "ClipboardActivated by another");
  });
};

TEST_F(WindowManager, ShowsTheHistoryStepByStepAndTellsIt) {
  manager->showAppWindow();
  EXPECT_EQ(log, (Log{"settings orderOut", "about orderOut"})) << "the rest waits for the next turn";
  settle();

  EXPECT_EQ(log, shown);
}

TEST_F(WindowManager, ShowingTheHistoryWhileItIsUpChangesNothing) {
  show();
  searchViewModel.searchTerm().set("term");

  manager->showAppWindow();
  settle();

  EXPECT_EQ(log, Log{}) << "no move, no notification and so no sound";
  EXPECT_EQ(searchViewModel.searchTerm().value(), "term");
}

TEST_F(WindowManager, CentresTheHistoryAnewEachTimeItIsShown) {
  show();
  manager->hideAppWindow();
  log.clear();

  manager->showAppWindow();
  settle();

  EXPECT_EQ(std::ranges::count(log, "history center"), 1);
}

TEST_F(WindowManager, ShowsNothingWhenItIsGoneBeforeTheNextTurn) {
  manager->showAppWindow();
  log.clear();

  manager.reset();
  settle();

  EXPECT_EQ(log, Log{});
}

TEST_F(WindowManager, LeavesTheGuideAloneWhenTheHistoryIsShown) {
  manager->showGettingStartedWindow();

  show();

  EXPECT_TRUE(gettingStartedWindow.isVisible());
}

TEST_F(WindowManager, TogglesTheHistory) {
  manager->toggleAppWindow();
  settle();
  EXPECT_EQ(log, shown);
  log.clear();

  manager->toggleAppWindow();
  EXPECT_EQ(log, dismissed);
}

TEST_F(WindowManager, SlidesThePreviewAwayAsItDismissesTheHistory) {
  showWithPreview();

  manager->hideAppWindow();
  EXPECT_EQ(log, dismissed) << "the preview is on its way";
  runLoop.advance(250ms);

  EXPECT_EQ(log, (Log{"history orderOut", "application hide", "preview orderOut"}));
  EXPECT_FALSE(manager->previewVisibility().isVisible().value());
}

TEST_F(WindowManager, DismissesTheHistoryInTheSameWayFromEachPlace) {
  const std::vector<std::function<void()>> places{
      [this] { manager->hideAppWindow(); }, [this] { manager->toggleAppWindow(); },
      [this] { manager->applicationDidResignActive(); }, [this] { press(escapeKey); }};
  for (const auto& dismiss : places) {
    showWithPreview();

    dismiss();
    runLoop.advance(250ms);

    EXPECT_EQ(log, (Log{"history orderOut", "application hide", "preview orderOut"}));
  }
}

TEST_F(WindowManager, ShowsTheSettingsInsteadOfHistoryAndPreviewWithoutASlide) {
  showWithPreview();

  manager->showSettingsWindow();

  EXPECT_EQ(log, (Log{"history orderOut", "preview orderOut", "application activate", "settings show the last pane",
                      "settings makeKeyAndOrderFront"}));
  EXPECT_FALSE(manager->previewVisibility().isVisible().value());
}

TEST_F(WindowManager, ShowsTheAppearancePaneOnDemand) {
  manager->showSettingsWindow(Manager::SettingsPane::appearance);

  EXPECT_EQ(std::ranges::count(log, "settings show appearance"), 1);
}

TEST_F(WindowManager, ShowsAboutInTheMiddleInsteadOfHistoryAndPreview) {
  showWithPreview();

  manager->showAboutWindow();

  EXPECT_EQ(log, (Log{"history orderOut", "preview orderOut", "application activate", "about center",
                      "about makeKeyAndOrderFront"}));
}

TEST_F(WindowManager, ClosesSettingsAndAboutForTheHistory) {
  manager->showSettingsWindow();
  manager->showAboutWindow();

  show();

  EXPECT_FALSE(settingsController.window().isVisible());
  EXPECT_FALSE(aboutWindow.isVisible());
}

TEST_F(WindowManager, CountsSettingsGuideAboutAndUpdateAsAuxiliaryWindows) {
  EXPECT_FALSE(manager->isAuxiliaryWindowVisible());

  manager->showSettingsWindow();
  EXPECT_TRUE(manager->isAuxiliaryWindowVisible());
  settingsController.window().orderOut();
  manager->showAboutWindow();
  EXPECT_TRUE(manager->isAuxiliaryWindowVisible());
  aboutWindow.orderOut();
  manager->showGettingStartedWindow();
  EXPECT_TRUE(manager->isAuxiliaryWindowVisible());
  manager->hideGettingStartedWindow();
  updateWindow.makeKeyAndOrderFront();
  EXPECT_TRUE(manager->isAuxiliaryWindowVisible());
  updateWindow.orderOut();
  EXPECT_FALSE(manager->isAuxiliaryWindowVisible());
}

TEST_F(WindowManager, CountsNeitherHistoryNorPreviewAsAuxiliaryWindows) {
  showWithPreview();

  EXPECT_FALSE(manager->isAuxiliaryWindowVisible());
}

TEST_F(WindowManager, KeepsSettingsAndAboutWhenTheUserGoesToAnotherApplication) {
  manager->showSettingsWindow();
  log.clear();
  manager->applicationDidResignActive();
  settingsController.window().orderOut();
  manager->showAboutWindow();
  log.clear();
  manager->applicationDidResignActive();

  EXPECT_EQ(log, Log{});
}

TEST_F(WindowManager, EscapeHidesTheApplicationWithAboutUpAllTheSame) {
  manager->showAboutWindow();
  log.clear();

  EXPECT_TRUE(press(escapeKey));

  EXPECT_EQ(log, dismissed);
}

TEST_F(WindowManager, OpensTheSettingsForCommandAndComma) {
  show();

  EXPECT_TRUE(press(commaKey, quillmonger::commandFlag));

  EXPECT_TRUE(settingsController.window().isVisible());
}

TEST_F(WindowManager, LeavesEveryOtherActionToOthers) {
  const quillmonger::KeyEvent event{};
  for (const Action action :
       {Action::select, Action::deleteItem, Action::moveDown, Action::moveUp, Action::optionChanged, Action::none})
    EXPECT_FALSE(manager->handleAction(action, event));
}

TEST_F(WindowManager, TogglingThePreviewWithTheHistoryHiddenDoesNothing) {
  manager->togglePreviewWindow();

  EXPECT_EQ(log, Log{});
  EXPECT_FALSE(previewPanel.isVisible());
}

TEST_F(WindowManager, TogglesThePreviewSixPointsBesideTheHistory) {
  show();

  manager->togglePreviewWindow();
  runLoop.advance(350ms);
  EXPECT_EQ(previewPanel.frame(), (WindowFrame{1266, 700, 600, 445}));
  EXPECT_TRUE(manager->previewVisibility().isVisible().value());

  manager->togglePreviewWindow();
  runLoop.advance(250ms);
  EXPECT_FALSE(previewPanel.isVisible());
  EXPECT_FALSE(manager->previewVisibility().isVisible().value());
}

TEST_F(WindowManager, ATogglePressedWhileThePreviewMovesHasNoEffect) {
  show();
  manager->togglePreviewWindow();
  runLoop.advance(100ms);

  manager->togglePreviewWindow();
  runLoop.advance(1s);

  EXPECT_TRUE(previewPanel.isVisible());
}

TEST_F(WindowManager, MakesRoomForThePreviewBesideTheHistory) {
  show();

  manager->togglePreviewWindow();

  EXPECT_EQ(appWindow.roomAtRight(), 338);
}

TEST_F(WindowManager, LeavesTheHistoryWhereItIsWhenThePreviewIsUpAlready) {
  showWithPreview();
  appWindow.makeRoomAtRight(0);

  manager->showPreviewWindow();

  EXPECT_EQ(appWindow.roomAtRight(), 0);
}

TEST_F(WindowManager, LeavesTheHistoryWhereItIsWhileThePreviewGoes) {
  showWithPreview();
  manager->togglePreviewWindow();
  appWindow.makeRoomAtRight(0);

  manager->showPreviewWindow();

  EXPECT_EQ(appWindow.roomAtRight(), 0);
}

}  // namespace
