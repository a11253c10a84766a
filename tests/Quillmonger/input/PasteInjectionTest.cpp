#include "Quillmonger/input/PasteInjection.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "Quillmonger/settings/SettingsKeys.h"
#include "tests/support/TestDefaults.h"
#include "tests/support/VirtualRunLoop.h"

namespace {

using namespace quillmonger;
using Log = std::vector<std::string>;

class LoggingPermissions final : public PermissionsManaging {
 public:
  explicit LoggingPermissions(Log& log) : m_log(log) {}
  [[nodiscard]] bool isAccessibilityAllowed() const override {
    m_log.emplace_back("test");
    return isAllowed;
  }
  void requestAccessibilityPermission() override { m_log.emplace_back("request"); }
  bool isAllowed = true;

 private:
  Log& m_log;
};

class LoggingPasteKeys final : public PasteKeyPosting {
 public:
  explicit LoggingPasteKeys(Log& log) : m_log(log) {}
  void postPasteKeyEvents() override { m_log.emplace_back("keys"); }

 private:
  Log& m_log;
};

class PasteInjectionTest : public testing::Test {
 protected:
  PasteInjectionTest() {
    injection.setDismissal([this] { log.emplace_back("dismiss"); });
  }

  Log log;
  LoggingPermissions permissions{log};
  LoggingPasteKeys pasteKeys{log};
  testsupport::VirtualRunLoop runLoop;
  foundation::NotificationCenter notificationCenter;
  testsupport::TestDefaults settings;
  PasteInjection injection{permissions, pasteKeys, runLoop, notificationCenter, settings.defaults};
  const int sender = 0;
  foundation::Subscription observation =
      notificationCenter.observe("PasteSucceeded", [this](const foundation::Notification& notification) {
        EXPECT_EQ(notification.object, &sender);
        log.emplace_back("succeeded");
      });
};

TEST_F(PasteInjectionTest, DismissesTestsTellsAndThenPressesTheKeys) {
  injection.pasteIntoFrontmostApplication(&sender);
  EXPECT_EQ(log, (Log{"dismiss", "test", "test", "succeeded"}));

  runLoop.runPosted();

  EXPECT_EQ(log, (Log{"dismiss", "test", "test", "succeeded", "keys"}));
}

TEST_F(PasteInjectionTest, HidesAndTestsNoPermissionWhileTheUserPastesByHand) {
  settings.defaults.set(keys::pasteToApp, false);

  injection.pasteIntoFrontmostApplication(&sender);
  runLoop.runPosted();

  EXPECT_EQ(log, (Log{"dismiss", "succeeded"}));
}

TEST_F(PasteInjectionTest, AsksForTheMissingPermissionAndTellsNoSuccess) {
  permissions.isAllowed = false;

  injection.pasteIntoFrontmostApplication(&sender);
  EXPECT_EQ(log, (Log{"dismiss", "test", "test"}));
  runLoop.runPosted();

  EXPECT_EQ(log, (Log{"dismiss", "test", "test", "request"}));
}

TEST_F(PasteInjectionTest, SaysWhetherItHasThePermission) {
  testing::internal::CaptureStdout();

  injection.pasteIntoFrontmostApplication(&sender);
  permissions.isAllowed = false;
  injection.pasteIntoFrontmostApplication(&sender);

  EXPECT_EQ(testing::internal::GetCapturedStdout(), "isAccessibilityAllowed = true\nisAccessibilityAllowed = false\n");
}

}  // namespace
