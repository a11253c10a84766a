#include "Quillmonger/input/PasteInjection.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "Quillmonger/settings/SettingsKeys.h"
#include "Sauce/Sauce.h"
#include "tests/support/FakeInputSourceService.h"
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
  void postPasteKeyEvents(std::uint16_t keyCode) override { m_log.push_back("key " + std::to_string(keyCode)); }

 private:
  Log& m_log;
};

// "v" where the Dvorak layout has it, and no "v" under the Russian one.
class InputSources final : public testsupport::FakeInputSourceService {
 public:
  InputSources(const sauce::InputSource& dvorak, const sauce::InputSource& rearranging,
               const sauce::InputSource& russian) {
    setTexts(dvorak, {{47, "v"}});
    setTexts(rearranging, {{47, "v"}});
    setTexts(russian, {{9, "\u043C"}});
    setEnabled({dvorak, rearranging, russian});
    setSelected(dvorak);
    setASCIICapable(dvorak);
  }
};

class PasteInjectionTest : public testing::Test {
 protected:
  PasteInjectionTest() {
    injection.setDismissal([this] { log.emplace_back("dismiss"); });
  }
  [[nodiscard]] Log pasteUnder(const sauce::InputSource& source) {
    inputSources.setSelected(source);
    inputSources.tellSelectedChanged();
    injection.pasteIntoFrontmostApplication(&sender);
    log.clear();
    runLoop.runPosted();
    return log;
  }
  static sauce::InputSource named(const std::string& name) {
    sauce::InputSource source(name);
    source.localizedName = name;
    return source;
  }

  Log log;
  LoggingPermissions permissions{log};
  LoggingPasteKeys pasteKeys{log};
  testsupport::VirtualRunLoop runLoop;
  foundation::NotificationCenter notificationCenter;
  testsupport::TestDefaults settings;
  const sauce::InputSource dvorak = named("Dvorak");
  const sauce::InputSource rearranging = named("Dvorak - QWERTY \u2318");
  const sauce::InputSource russian = named("Russian");
  InputSources inputSources{dvorak, rearranging, russian};
  sauce::Sauce sauce{inputSources, notificationCenter};
  PasteInjection injection{permissions, sauce, pasteKeys, runLoop, notificationCenter, settings.defaults};
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

  EXPECT_EQ(log, (Log{"dismiss", "test", "test", "succeeded", "key 47"}));
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

TEST_F(PasteInjectionTest, PressesTheKeyThatTypesVUnderTheCurrentLayout) {
  EXPECT_EQ(pasteUnder(dvorak), Log{"key 47"});
}

TEST_F(PasteInjectionTest, PressesTheAnsiKeyUnderALayoutNamedWithATrailingCommandSignWhateverItsTableSays) {
  EXPECT_EQ(pasteUnder(rearranging), Log{"key 9"});
}

TEST_F(PasteInjectionTest, PressesTheAnsiKeyUnderALayoutThatHasNoV) { EXPECT_EQ(pasteUnder(russian), Log{"key 9"}); }

}  // namespace
