#include "Settings/SettingsWindowController.h"

#include <gtest/gtest.h>

#include "tests/Settings/FakePaneView.h"
#include "tests/Settings/FakeSettingsWindow.h"

namespace {

using settings::Frame;
using settings::Style;
using Animation = settings::SettingsTabViewController::Animation;
using Controller = settings::SettingsWindowController;
using Log = std::vector<std::string>;

class SettingsWindowController : public testing::Test {
 protected:
  std::optional<std::size_t> activeTab() { return m_controller.tabViewController().activeTab(); }

  testsupport::FakePanes m_panes{{{500, 300}, {480, 420}}};
  testsupport::FakeSettingsWindow m_window;
  Controller m_controller{
      m_window,          m_panes.take(), Style::toolbarItems, Animation::off, Controller::SingleItemToolbar::hidden,
      "Program Settings"};
};

TEST_F(SettingsWindowController, ShowsTheFirstPaneWithoutAnIdentifier) {
  m_controller.show();

  EXPECT_EQ(activeTab(), 0);
}

TEST_F(SettingsWindowController, ShowsThePaneOfAnIdentifier) {
  m_controller.show({{"second"}});

  EXPECT_EQ(activeTab(), 1);
}

TEST_F(SettingsWindowController, FallsBackOnTheFirstPaneForAnIdentifierThatDoesNotExist) {
  m_controller.show({{"second"}});

  m_controller.show({{"nowhere"}});

  EXPECT_EQ(activeTab(), 0);
}

TEST_F(SettingsWindowController, ShowsThePaneLastShownAfterItWasClosed) {
  m_controller.show({{"second"}});
  // Closed by the user: nobody tells the controller.

  m_controller.show();

  EXPECT_EQ(activeTab(), 1);
}

TEST_F(SettingsWindowController, AppliesTheStoredFrameAfterItHasCentred) {
  m_window.stored = Frame{70, 80, 1, 1};

  m_controller.show();

  EXPECT_EQ(m_window.log(), (Log{"showWindow", "center", "setFrameUsingName com.ondalis.Settings.FrameAutosaveName",
                                 "setFrameAutosaveName com.ondalis.Settings.FrameAutosaveName", "activate"}));
  EXPECT_EQ(m_window.frame(), (Frame{70, 80, 500, 360})) << "a remembered position wins";
}

TEST_F(SettingsWindowController, IsCentredTheFirstTime) {
  m_controller.show();

  EXPECT_EQ(m_window.frame().left, testsupport::FakeSettingsWindow::centered.left);
}

TEST_F(SettingsWindowController, LeavesTheTitleBarWhereItWasWhenItIsResized) {
  m_controller.show();
  m_window.setFrame({120, 130, 500, 360});

  m_controller.tabViewController().activateTab(1);

  EXPECT_EQ(m_window.frame(), (Frame{120, 130, 480, 480}));
}

TEST_F(SettingsWindowController, HidesTheToolbarOfASinglePaneWhereThatIsWanted) {
  EXPECT_TRUE(m_controller.isToolbarShown());

  for (const auto toolbar : {Controller::SingleItemToolbar::hidden, Controller::SingleItemToolbar::shown}) {
    testsupport::FakePanes single({{500, 300}});
    const Controller controller(m_window, single.take(), Style::toolbarItems, Animation::off, toolbar, "Title");
    EXPECT_EQ(controller.isToolbarShown(), toolbar == Controller::SingleItemToolbar::shown);
  }
}

TEST(SettingsWindowControllerDeathTest, StopsTheProcessWithoutPanes) {
  testsupport::FakeSettingsWindow window;

  EXPECT_DEATH(Controller{window},
               "init\\(window:\\) is not supported, use "
               "init\\(panes:style:animated:hidesToolbarForSingleItem:\\)");
}

TEST(SettingsWindowControllerDeathTest, StopsTheProcessFromAnArchive) {
  testsupport::FakeSettingsWindow window;

  EXPECT_DEATH((Controller{window, defaults::Object(true)}),
               "init\\(coder:\\) is not supported, use "
               "init\\(panes:style:animated:hidesToolbarForSingleItem:hidesToolbarForSingleItem:\\)");
}

}  // namespace
