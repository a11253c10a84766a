#include "Quillmonger/settings/panes/SettingRange.h"

#include <gtest/gtest.h>

#include <limits>

#include "Quillmonger/settings/SettingsKeys.h"
#include "tests/support/TestDefaults.h"

namespace {

namespace keys = quillmonger::keys;

class SettingRange : public testing::Test {
 protected:
  double pause() { return m_defaults.defaults[keys::searchDebounceInterval]; }

  testsupport::TestDefaults m_defaults;
  int m_changes = 0;
  quillmonger::SettingRange m_range{
      m_defaults.defaults, keys::searchDebounceInterval, {0.05, 0.301, 0.05}, [this] { ++m_changes; }};
};

TEST_F(SettingRange, ReachesTheValueAtItsTopStepAndStopsThere) {
  m_range.set(0.29);
  EXPECT_NEAR(pause(), 0.3, 1e-12);

  m_range.set(0.301);
  EXPECT_NEAR(pause(), 0.3, 1e-12);
  m_range.set(7);
  EXPECT_NEAR(pause(), 0.3, 1e-12);
}

TEST_F(SettingRange, WritesTheNearestStep) {
  m_range.set(0.12);
  EXPECT_NEAR(pause(), 0.1, 1e-12);

  m_range.set(-1);
  EXPECT_EQ(pause(), 0.05);
}

TEST_F(SettingRange, TakesEveryNumberWithoutSteps) {
  quillmonger::SettingRange volume(m_defaults.defaults, keys::soundVolume, {0, 1, 0}, [] {});

  volume.set(0.123);

  EXPECT_FLOAT_EQ(m_defaults.defaults[keys::soundVolume], 0.123F);
}

TEST_F(SettingRange, SeesAChangeFromElsewhere) {
  m_defaults.defaults.set(keys::searchDebounceInterval, 0.25);

  EXPECT_EQ(m_range.value(), 0.25);
  EXPECT_EQ(m_changes, 1);
}

TEST_F(SettingRange, ShowsAValueBeyondItsBoundsAtTheBound) {
  m_defaults.defaults.set(keys::searchDebounceInterval, 9);
  EXPECT_EQ(m_range.value(), 0.301);

  m_defaults.defaults.set(keys::searchDebounceInterval, -9);
  EXPECT_EQ(m_range.value(), 0.05);
}

}  // namespace
