#include "Settings/SettingsTabViewController.h"

#include <gtest/gtest.h>

#include <memory>

#include "tests/Settings/FakePaneView.h"
#include "tests/Settings/FakeSettingsWindow.h"

namespace {

using settings::Frame;
using settings::Style;
using Controller = settings::SettingsTabViewController;

class SettingsTabViewController : public testing::Test {
 protected:
  void make(Controller::Animation animation, Style style = Style::toolbarItems) {
    m_controller = std::make_unique<Controller>(m_panes.take(), style, animation, "Program Settings", m_window);
  }
  std::optional<std::size_t> selected() { return m_controller->settingsStyleController().selectedTab().value(); }

  testsupport::FakePanes m_panes{{{500, 300}, {480, 420}, {600, 100}}};
  testsupport::FakeSettingsWindow m_window;
  std::unique_ptr<Controller> m_controller;
};

TEST_F(SettingsTabViewController, ShowsNoPaneAtFirst) {
  make(Controller::Animation::on);

  EXPECT_EQ(m_controller->activeTab(), std::nullopt);
  EXPECT_EQ(selected(), std::nullopt);
}

TEST_F(SettingsTabViewController, ShowsTheFirstPaneAtOnceAndSelectsItsItem) {
  make(Controller::Animation::on);

  m_controller->restoreInitialTab();

  EXPECT_EQ(m_controller->activeTab(), 0);
  EXPECT_EQ(selected(), 0);
  EXPECT_FALSE(m_window.isAnimating()) << "there is nothing to fade from";
  EXPECT_EQ(m_panes.view(0).alpha(), 1);
  EXPECT_EQ(m_window.frame(), (Frame{400, 200, 500, 360}));
}

TEST_F(SettingsTabViewController, FallsBackOnTheFirstPaneForAnIdentifierThatNoneHas) {
  make(Controller::Animation::off);
  m_controller->activateTab({"second"});
  EXPECT_EQ(m_controller->activeTab(), 1);

  m_controller->activateTab({"nowhere"});

  EXPECT_EQ(m_controller->activeTab(), 0);
}

TEST_F(SettingsTabViewController, KeepsTheTopAndTheLeftEdgeWhereTheyWere) {
  make(Controller::Animation::off);
  m_controller->activateTab(0);

  m_controller->activateTab(1);
  EXPECT_EQ(m_window.frame(), (Frame{400, 200, 480, 480}));
  m_controller->activateTab(2);
  EXPECT_EQ(m_window.frame(), (Frame{400, 200, 600, 160}));
}

TEST_F(SettingsTabViewController, KeepsTheMiddleWithASegmentedControl) {
  make(Controller::Animation::off, Style::segmentedControl);
  m_controller->activateTab(0);
  const double middle = m_window.frame().left + 250;

  m_controller->activateTab(2);

  EXPECT_EQ(m_window.frame(), (Frame{middle - 300, 200, 600, 160}));
}

TEST_F(SettingsTabViewController, FadesFromThePaneBeforeWhileTheWindowIsResized) {
  make(Controller::Animation::on);
  m_controller->activateTab(0);

  m_controller->activateTab(1);
  m_window.advance(0.25);

  EXPECT_EQ(m_panes.view(0).alpha(), 0.75);
  EXPECT_EQ(m_panes.view(1).alpha(), 0.25);
  EXPECT_EQ(m_window.frame(), (Frame{400, 200, 495, 390}));
  m_window.endAnimation();
  EXPECT_EQ(m_panes.view(0).alpha(), 0);
  EXPECT_EQ(m_panes.view(1).alpha(), 1);
  EXPECT_EQ(m_window.frame(), (Frame{400, 200, 480, 480}));
}

TEST_F(SettingsTabViewController, PausesInteractionWhileItFades) {
  make(Controller::Animation::on);
  m_controller->activateTab(0);
  EXPECT_TRUE(m_window.isUserInteractionEnabled());

  m_controller->activateTab(1);
  EXPECT_FALSE(m_window.isUserInteractionEnabled());
  m_window.endAnimation();

  EXPECT_TRUE(m_window.isUserInteractionEnabled());
}

TEST_F(SettingsTabViewController, EndsOneFadeBeforeTheNext) {
  make(Controller::Animation::on);
  m_controller->activateTab(0);
  m_controller->activateTab(1);
  m_window.advance(0.5);

  m_controller->activateTab(2);

  EXPECT_EQ(m_panes.view(0).alpha(), 0);
  EXPECT_FALSE(m_window.isUserInteractionEnabled());
  m_window.endAnimation();
  EXPECT_EQ(m_panes.view(1).alpha(), 0);
  EXPECT_EQ(m_panes.view(2).alpha(), 1);
  EXPECT_TRUE(m_window.isUserInteractionEnabled());
}

TEST_F(SettingsTabViewController, OnlySelectsTheItemOfAPaneThatIsShown) {
  make(Controller::Animation::on);
  m_controller->activateTab(1);
  int selections = 0;
  const auto counting =
      m_controller->settingsStyleController().selectedTab().subscribe([&selections](const auto&) { ++selections; });

  m_controller->activateTab(1);

  EXPECT_EQ(selections, 1);
  EXPECT_FALSE(m_window.isAnimating());
}

TEST_F(SettingsTabViewController, ActivatesThePaneOfAChosenItem) {
  make(Controller::Animation::off);
  m_controller->restoreInitialTab();

  m_controller->settingsStyleController().choose(2);

  EXPECT_EQ(m_controller->activeTab(), 2);
}

TEST_F(SettingsTabViewController, IsTitledAsThePane) {
  make(Controller::Animation::off);

  m_controller->activateTab(0);
  EXPECT_EQ(m_window.title(), "The first");
  m_controller->activateTab(1);
  EXPECT_EQ(m_window.title(), "The second");
}

TEST_F(SettingsTabViewController, IsTitledAsTheProgramWithASinglePane) {
  testsupport::FakePanes single({{500, 300}});
  Controller controller(single.take(), Style::toolbarItems, Controller::Animation::on, "Program Settings", m_window);

  controller.restoreInitialTab();

  EXPECT_EQ(m_window.title(), "Program Settings");
}

TEST_F(SettingsTabViewController, FollowsTheSizeOfThePaneThatIsShown) {
  make(Controller::Animation::off);
  m_controller->activateTab(0);

  m_panes.view(1).resize({480, 500});
  EXPECT_EQ(m_window.frame(), (Frame{400, 200, 500, 360}));
  m_panes.view(0).resize({500, 340});
  EXPECT_EQ(m_window.frame(), (Frame{400, 200, 500, 400}));
}

TEST_F(SettingsTabViewController, EndsAFadeWithTheSizeThatThePaneHasByThen) {
  make(Controller::Animation::on);
  m_controller->activateTab(0);
  m_controller->activateTab(1);

  m_panes.view(1).resize({480, 500});
  m_window.endAnimation();

  EXPECT_EQ(m_window.frame(), (Frame{400, 200, 480, 560}));
}

}  // namespace
