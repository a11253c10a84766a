#include "LaunchAtLogin/Toggle.h"

#include <gtest/gtest.h>

#include "tests/support/FakeAppService.h"

namespace {

class LaunchAtLoginToggle : public testing::Test {
 protected:
  testsupport::FakeAppService service;
  launchatlogin::LaunchAtLogin launch{service, [](const std::string&) {}};
};

TEST_F(LaunchAtLoginToggle, IsCalledLaunchAtLoginUnlessItIsGivenALabel) {
  EXPECT_EQ(launchatlogin::Toggle(launch.observable()).label(), "Launch at login");
  EXPECT_EQ(launchatlogin::Toggle(launch.observable(), "Start with me").label(), "Start with me");
}

TEST_F(LaunchAtLoginToggle, TurnsTheStartAtLoginOnAndOff) {
  launchatlogin::Toggle toggle(launch.observable());
  EXPECT_FALSE(toggle.isOn());

  toggle.flip();
  EXPECT_TRUE(toggle.isOn());
  EXPECT_TRUE(launch.isEnabled());

  toggle.flip();
  EXPECT_FALSE(toggle.isOn());
  EXPECT_FALSE(launch.isEnabled());
}

TEST_F(LaunchAtLoginToggle, ShowsWhatTheDesktopHoldsNow) {
  const launchatlogin::Toggle toggle(launch.observable());

  static_cast<void>(service.registerApp());

  EXPECT_TRUE(toggle.isOn());
}

TEST_F(LaunchAtLoginToggle, StaysOffWhereTheDesktopRefuses) {
  launchatlogin::Toggle toggle(launch.observable());
  service.failure = "no";

  toggle.flip();

  EXPECT_FALSE(toggle.isOn());
}

}  // namespace
