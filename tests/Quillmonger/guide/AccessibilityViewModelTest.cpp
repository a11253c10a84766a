#include "Quillmonger/guide/AccessibilityViewModel.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>

#include "Quillmonger/shell/PermissionsManager.h"
#include "tests/support/FakeAlert.h"
#include "tests/support/FakePostEventAccess.h"
#include "tests/support/VirtualRunLoop.h"

namespace {

using namespace std::chrono_literals;

class AccessibilityScreen : public testing::Test {
 protected:
  AccessibilityScreen() { m_access.setAllowed(false); }

  [[nodiscard]] bool isGranted() { return m_screen.permissionsGranted().value(); }

  testsupport::VirtualRunLoop m_runLoop;
  testsupport::FakePostEventAccess m_access;
  testsupport::FakeAlert m_alert{quillmonger::Alert::firstButton};
  quillmonger::PermissionsManager m_permissions{m_access, m_alert,
                                                [](std::string_view key) { return std::string(key); },
                                                [](const foundation::Url&) {}, m_runLoop};
  quillmonger::AccessibilityViewModel m_screen{m_permissions, m_runLoop};
};

TEST_F(AccessibilityScreen, GrantingThePermissionTurnsTheCheckMarkOnWithinAQuarterOfASecond) {
  m_screen.appear();
  m_runLoop.advance(10s);
  EXPECT_FALSE(isGranted());

  m_access.setAllowed(true);
  m_runLoop.advance(250ms);

  EXPECT_TRUE(isGranted());
}

TEST_F(AccessibilityScreen, WithdrawingThePermissionTurnsTheCheckMarkOff) {
  m_access.setAllowed(true);
  m_screen.appear();
  m_runLoop.advance(250ms);
  EXPECT_TRUE(isGranted());

  m_access.setAllowed(false);
  m_runLoop.advance(250ms);

  EXPECT_FALSE(isGranted());
}

TEST_F(AccessibilityScreen, TestsForTheFirstTimeAQuarterOfASecondAfterItAppeared) {
  m_access.setAllowed(true);

  m_screen.appear();
  m_runLoop.advance(249ms);
  EXPECT_FALSE(isGranted());
  m_runLoop.advance(1ms);

  EXPECT_TRUE(isGranted());
}

TEST_F(AccessibilityScreen, AppearingAnewStartsTheTimerAnewAndForgetsWhatWasKnown) {
  m_access.setAllowed(true);
  m_screen.appear();
  m_runLoop.advance(300ms);

  m_screen.appear();
  EXPECT_FALSE(isGranted());
  m_runLoop.advance(249ms);
  EXPECT_FALSE(isGranted());
  m_runLoop.advance(1ms);

  EXPECT_TRUE(isGranted());
}

TEST_F(AccessibilityScreen, TestsNothingOnceItIsGone) {
  m_screen.appear();
  m_screen.disappear();

  m_access.setAllowed(true);
  m_runLoop.advance(10s);

  EXPECT_FALSE(isGranted());
}

TEST_F(AccessibilityScreen, TellsOnlyChanges) {
  int changes = 0;
  const auto subscription = m_screen.permissionsGranted().subscribe([&changes](bool) { ++changes; });
  m_access.setAllowed(true);

  m_screen.appear();
  m_runLoop.advance(10s);

  EXPECT_EQ(changes, 1);
}

TEST_F(AccessibilityScreen, TheButtonUsesUpTheFirstRequestSoThatALaterOneShowsTheAlert) {
  m_screen.requestPermission();
  m_runLoop.runPosted();
  EXPECT_EQ(m_access.requestCount(), 1);
  EXPECT_TRUE(m_alert.shown().empty());

  m_permissions.requestAccessibilityPermission();
  m_runLoop.runPosted();

  EXPECT_EQ(m_access.requestCount(), 1);
  EXPECT_EQ(m_alert.shown().size(), 1U);
}

}  // namespace
