#include "Quillmonger/shell/PermissionsManager.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "tests/support/FakeAlert.h"
#include "tests/support/FakePostEventAccess.h"
#include "tests/support/VirtualRunLoop.h"

namespace {

using namespace quillmonger;

class PermissionsManagerTest : public testing::Test {
 protected:
  PermissionsManagerTest() : PermissionsManagerTest(Alert::firstButton) {}
  explicit PermissionsManagerTest(int answer) : alert(answer) {
    manager.emplace(
        access, alert, [](std::string_view key) { return std::string(key); },
        [this](const foundation::Url& url) { opened.push_back(url.absoluteString()); }, runLoop);
  }
  void request() {
    manager->requestAccessibilityPermission();
    runLoop.runPosted();
  }

  testsupport::FakePostEventAccess access;
  testsupport::FakeAlert alert;
  testsupport::VirtualRunLoop runLoop;
  std::vector<std::string> opened;
  std::optional<PermissionsManager> manager;
};

class PermissionsManagerOpeningTest : public PermissionsManagerTest {
 protected:
  PermissionsManagerOpeningTest() : PermissionsManagerTest(Alert::secondButton) {}
};

TEST_F(PermissionsManagerTest, AsksTheDesktopAnewEachTime) {
  EXPECT_TRUE(manager->isAccessibilityAllowed());
  access.setAllowed(false);
  EXPECT_FALSE(manager->isAccessibilityAllowed());
}

TEST_F(PermissionsManagerTest, TheFirstRequestOfARunShowsOnlyTheSystemsPromptAndTheLaterOnesTheAlert) {
  request();
  EXPECT_EQ(access.requestCount(), 1);
  EXPECT_TRUE(alert.shown().empty());

  request();
  request();

  EXPECT_EQ(access.requestCount(), 1);
  ASSERT_EQ(alert.shown().size(), 2U);
  EXPECT_EQ(alert.shown().front().message, "dialog_message");
  EXPECT_EQ(alert.shown().front().informativeText, "dialog_description");
  EXPECT_EQ(alert.shown().front().buttons, (std::vector<std::string>{"dialog_deny_button", "dialog_open_button"}));
  EXPECT_TRUE(opened.empty());
}

TEST_F(PermissionsManagerTest, TheAlertComesInATurnOfItsOwn) {
  request();

  manager->requestAccessibilityPermission();
  EXPECT_TRUE(alert.shown().empty());
  runLoop.runPosted();

  EXPECT_EQ(alert.shown().size(), 1U);
}

TEST_F(PermissionsManagerTest, NoAlertComesOnceTheManagerIsGone) {
  request();

  manager->requestAccessibilityPermission();
  manager.reset();
  runLoop.runPosted();

  EXPECT_TRUE(alert.shown().empty());
}

TEST_F(PermissionsManagerOpeningTest, TheSecondButtonOpensTheDesktopsSettings) {
  request();
  request();

  EXPECT_EQ(opened, std::vector<std::string>{"settings:keys"});
}

TEST_F(PermissionsManagerOpeningTest, OpensNothingWhereTheDesktopHasNoPlaceForIt) {
  access.setSettingsUrl("");
  request();
  request();

  EXPECT_TRUE(opened.empty());
}

}  // namespace
