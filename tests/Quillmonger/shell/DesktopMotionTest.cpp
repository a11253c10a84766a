#include "Quillmonger/shell/DesktopMotion.h"

#include <gtest/gtest.h>

#include "tests/support/FakeDesktopPreferences.h"
#include "tests/support/FakeMotionPreference.h"

namespace {

TEST(DesktopMotion, IsUnwantedWhereEitherServiceSaysSo) {
  testsupport::FakeDesktopPreferences preferences;
  testsupport::FakeMotionPreference windowSystem;
  const quillmonger::DesktopMotion motion(preferences, windowSystem);
  EXPECT_FALSE(motion.reducesMotion());

  preferences.reducesMotion().set(true);
  EXPECT_TRUE(motion.reducesMotion());
  windowSystem.setReducesMotion(true);
  EXPECT_TRUE(motion.reducesMotion());
  preferences.reducesMotion().set(false);
  EXPECT_TRUE(motion.reducesMotion());
}

}  // namespace
