#include "Quillmonger/preview/window/PreviewWindow.h"

#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <vector>

#include "tests/support/FakeMotionPreference.h"
#include "tests/support/FakeWindow.h"
#include "tests/support/VirtualRunLoop.h"

namespace {

using namespace std::chrono_literals;
using quillmonger::WindowFrame;
using Log = std::vector<std::string>;

constexpr WindowFrame parentFrame{100, 700, 600, 445};
constexpr WindowFrame target{706, 700, 600, 445};
constexpr double padding = 6;

class PreviewWindow : public testing::Test {
 protected:
  PreviewWindow() {
    parent.place(parentFrame, 3);
    panel.place({0, 445, 600, 445}, 0);
    preview->visibilityChanged = [this](bool isVisible) { told.push_back(isVisible); };
  }

  void show() { preview->show(parent, padding); }
  void showToTheEnd() {
    show();
    runLoop.advance(350ms);
  }

  Log log;
  testsupport::VirtualRunLoop runLoop;
  testsupport::FakeMotionPreference motion;
  testsupport::FakeWindow parent{"parent", log};
  testsupport::FakePanel panel{"preview", log};
  std::vector<bool> told;
  std::unique_ptr<quillmonger::PreviewWindow> preview =
      std::make_unique<quillmonger::PreviewWindow>(panel, runLoop, motion);
};

TEST_F(PreviewWindow, IsHiddenAndStillAtFirst) {
  EXPECT_FALSE(preview->isVisible());
  EXPECT_FALSE(preview->isAnimating());
}

TEST_F(PreviewWindow, StartsSixPaddingsLeftOfItsTargetWithItsOwnSizeAndUnseen) {
  panel.place({0, 0, 300, 200}, 0);

  show();

  EXPECT_EQ(panel.frame(), (WindowFrame{670, 700, 300, 200}));
  EXPECT_EQ(panel.alpha(), 0);
  EXPECT_TRUE(preview->isVisible());
  EXPECT_TRUE(preview->isAnimating());
}

TEST_F(PreviewWindow, StandsOneLevelUnderTheParentAndLeavesTheKeyboardAlone) {
  show();

  EXPECT_EQ(panel.level(), 2);
  EXPECT_EQ(log, Log{"preview orderFront"});
}

TEST_F(PreviewWindow, EndsBesideTheParentWithTheParentsSizeAfterThirtyFiveHundredths) {
  panel.place({0, 0, 300, 200}, 0);
  show();

  runLoop.advance(349ms);
  EXPECT_TRUE(preview->isAnimating());
  EXPECT_NE(panel.frame(), target);
  runLoop.advance(1ms);

  EXPECT_EQ(panel.frame(), target);
  EXPECT_EQ(panel.alpha(), 1);
  EXPECT_FALSE(preview->isAnimating());
}

TEST_F(PreviewWindow, SlidesFastAtFirstAndCalmAtItsEnd) {
  show();
  const double start = panel.frame().left;
  std::vector<double> ways;

  for (int quarter = 0; quarter < 4; ++quarter) {
    const double before = panel.frame().left;
    runLoop.advance(87500us);
    ways.push_back(panel.frame().left - before);
  }

  EXPECT_EQ(start + 36, panel.frame().left);
  for (std::size_t quarter = 1; quarter < ways.size(); ++quarter) {
    EXPECT_LT(ways[quarter], ways[quarter - 1]);
    EXPECT_GT(ways[quarter], 0);
  }
}

TEST_F(PreviewWindow, ASecondShowWhileItIsVisibleLeavesFrameAndAlphaAlone) {
  showToTheEnd();
  parent.place({0, 500, 600, 445}, 3);
  panel.setAlpha(0.5);

  show();
  runLoop.advance(1s);

  EXPECT_EQ(panel.frame(), target);
  EXPECT_EQ(panel.alpha(), 0.5);
  EXPECT_FALSE(preview->isAnimating());
}

TEST_F(PreviewWindow, AHideWhileItComesDoesNothing) {
  show();
  runLoop.advance(200ms);

  preview->hide();
  runLoop.advance(1s);

  EXPECT_TRUE(preview->isVisible());
  EXPECT_EQ(panel.frame(), target);
  EXPECT_EQ(panel.alpha(), 1);
}

TEST_F(PreviewWindow, AShowWhileItGoesIsNotMadeUpForLater) {
  showToTheEnd();
  preview->hide();
  runLoop.advance(100ms);

  show();
  runLoop.advance(1s);

  EXPECT_FALSE(preview->isVisible());
}

TEST_F(PreviewWindow, AShowWhileItGoesIsIgnoredAlsoWhenTheDesktopHasTakenItOffTheScreen) {
  showToTheEnd();
  preview->hide();
  panel.orderOut();

  show();

  EXPECT_FALSE(preview->isVisible());
}

TEST_F(PreviewWindow, SlidesItsWholeWidthToTheLeftAndGoesAfterAQuarterSecond) {
  showToTheEnd();

  preview->hide();
  runLoop.advance(249ms);
  EXPECT_TRUE(preview->isVisible());
  EXPECT_TRUE(preview->isAnimating());
  EXPECT_LT(panel.alpha(), 0.01);
  runLoop.advance(1ms);

  EXPECT_EQ(panel.frame(), (WindowFrame{106, 700, 600, 445}));
  EXPECT_FALSE(preview->isVisible());
  EXPECT_FALSE(preview->isAnimating());
}

TEST_F(PreviewWindow, HasFullAlphaAgainOnceItIsHidden) {
  showToTheEnd();

  preview->hide();
  runLoop.advance(250ms);

  EXPECT_FALSE(preview->isVisible());
  EXPECT_EQ(panel.alpha(), 1);
}

TEST_F(PreviewWindow, AHideWhileItIsHiddenDoesNothing) {
  preview->hide();

  EXPECT_FALSE(preview->isAnimating());
  EXPECT_EQ(log, Log{});
}

TEST_F(PreviewWindow, StaysWhereItIsWhenTheParentMoves) {
  showToTheEnd();

  parent.place({0, 300, 500, 400}, 3);
  runLoop.advance(1s);

  EXPECT_EQ(panel.frame(), target);
}

TEST_F(PreviewWindow, KeepsItsTargetWhenTheParentMovesWhileItComes) {
  show();

  parent.place({0, 300, 500, 400}, 3);
  runLoop.advance(350ms);

  EXPECT_EQ(panel.frame(), target);
}

TEST_F(PreviewWindow, APaddingOfZeroGivesNoSlide) {
  preview->show(parent, 0);
  EXPECT_EQ(panel.frame().left, 700);

  runLoop.advance(100ms);
  EXPECT_EQ(panel.frame().left, 700);
}

TEST_F(PreviewWindow, TellsEachComingAndGoing) {
  showToTheEnd();
  EXPECT_EQ(told, std::vector<bool>{true});

  preview->hide();
  EXPECT_EQ(told, std::vector<bool>{true});
  runLoop.advance(250ms);
  EXPECT_EQ(told, (std::vector<bool>{true, false}));
}

TEST_F(PreviewWindow, TellsAfterTheWindowWasOrdered) {
  std::vector<bool> seen;
  preview->visibilityChanged = [this, &seen](bool) { seen.push_back(panel.isVisible()); };

  preview->orderFront();
  preview->orderOut();

  EXPECT_EQ(seen, (std::vector<bool>{true, false}));
}

TEST_F(PreviewWindow, IsOrderedWithoutAReceiverToo) {
  preview->visibilityChanged = nullptr;

  preview->orderFront();
  preview->orderOut();

  EXPECT_EQ(log, (Log{"preview orderFront", "preview orderOut"}));
}

TEST_F(PreviewWindow, LeavesThePanelAloneOnceItIsGone) {
  show();
  const WindowFrame last = panel.frame();

  preview.reset();
  runLoop.advance(1s);

  EXPECT_EQ(panel.frame(), last);
  EXPECT_EQ(panel.alpha(), 0);
}

TEST_F(PreviewWindow, ComesAndGoesAtOnceWhereTheUserWantsNoMotion) {
  motion.setReducesMotion(true);

  show();
  EXPECT_EQ(panel.frame(), target);
  EXPECT_EQ(panel.alpha(), 1);
  EXPECT_FALSE(preview->isAnimating());
  preview->hide();

  EXPECT_FALSE(preview->isVisible());
  EXPECT_EQ(panel.alpha(), 1);
  EXPECT_FALSE(preview->isAnimating());
}

}  // namespace
