#include "LaunchAtLogin/LaunchAtLogin.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/FakeAppService.h"

namespace {

using Calls = std::vector<std::string>;

class LaunchAtLogin : public testing::Test {
 protected:
  testsupport::FakeAppService service;
  Calls log;
  launchatlogin::LaunchAtLogin launch{service, [this](const std::string& message) { log.push_back(message); }};
};

TEST_F(LaunchAtLogin, IsOffUntilTheDesktopHoldsARegistration) {
  EXPECT_FALSE(launch.isEnabled());

  static_cast<void>(service.registerApp());

  EXPECT_TRUE(launch.isEnabled());
}

TEST_F(LaunchAtLogin, RegistersWhenItIsTurnedOn) {
  launch.setEnabled(true);

  EXPECT_TRUE(launch.isEnabled());
  EXPECT_EQ(service.calls, Calls{"register"});
}

TEST_F(LaunchAtLogin, LeavesTheRegistrationInPlaceWhenItIsTurnedOnTwice) {
  launch.setEnabled(true);
  launch.setEnabled(true);

  EXPECT_TRUE(launch.isEnabled());
}

TEST_F(LaunchAtLogin, RenewsTheRegistrationWhenItIsTurnedOnTwice) {
  launch.setEnabled(true);
  service.calls.clear();

  launch.setEnabled(true);

  EXPECT_EQ(service.calls, (Calls{"unregister", "register"}));
}

TEST_F(LaunchAtLogin, UnregistersWhenItIsTurnedOff) {
  launch.setEnabled(true);
  service.calls.clear();

  launch.setEnabled(false);

  EXPECT_FALSE(launch.isEnabled());
  EXPECT_EQ(service.calls, Calls{"unregister"});
}

TEST_F(LaunchAtLogin, IsOffAtTheNextReadAfterAFailedRegistration) {
  service.failure = "no room";

  launch.setEnabled(true);

  EXPECT_FALSE(launch.isEnabled());
}

TEST_F(LaunchAtLogin, LogsWhatCouldNotBeEnabledAndWhy) {
  service.failure = "no room";

  launch.setEnabled(true);

  EXPECT_EQ(log, Calls{"Failed to enable launch at login: no room"});
}

TEST_F(LaunchAtLogin, LogsWhatCouldNotBeDisabledAndWhy) {
  launch.setEnabled(true);
  service.failure = "not yours";

  launch.setEnabled(false);

  EXPECT_EQ(log, Calls{"Failed to disable launch at login: not yours"});
  EXPECT_TRUE(launch.isEnabled());
}

TEST_F(LaunchAtLogin, RegistersNothingAfterARenewalThatFailedToUnregister) {
  launch.setEnabled(true);
  service.calls.clear();
  service.failure = "not yours";

  launch.setEnabled(true);

  EXPECT_EQ(service.calls, Calls{"unregister"});
  EXPECT_EQ(log, Calls{"Failed to enable launch at login: not yours"});
}

TEST_F(LaunchAtLogin, LogsNothingThatWorked) {
  launch.setEnabled(true);
  launch.setEnabled(false);

  EXPECT_TRUE(log.empty());
}

TEST_F(LaunchAtLogin, TellsItsObserversAheadOfTheChange) {
  std::vector<bool> seen;
  const auto hold =
      launch.observable().objectWillChange().subscribe([&](const auto&) { seen.push_back(launch.isEnabled()); });

  launch.setEnabled(true);
  launch.setEnabled(false);

  EXPECT_EQ(seen, (std::vector<bool>{false, true}));
}

TEST_F(LaunchAtLogin, GivesViewsTheValueAndTakesItFromThem) {
  launch.observable().setEnabled(true);

  EXPECT_TRUE(launch.isEnabled());
  EXPECT_TRUE(launch.observable().isEnabled());
}

}  // namespace
