#include "Quillmonger/settings/panes/SettingChoice.h"

#include <gtest/gtest.h>

#include <cstdint>

#include "tests/support/TestDefaults.h"

namespace {

const defaults::Key<std::int64_t> sizeKey{"size", 10};
const defaults::Key<std::optional<std::string>> wordKey{"word", std::nullopt};

class SettingChoice : public testing::Test {
 protected:
  testsupport::TestDefaults m_defaults;
  int m_changes = 0;
  quillmonger::SettingChoice m_choice{
      m_defaults.defaults, sizeKey, {{10, "ten"}, {50, "fifty"}}, [this] { ++m_changes; }};
};

TEST_F(SettingChoice, NamesItsOptionsInTheirOrder) {
  EXPECT_EQ(m_choice.textKeys(), (std::vector<std::string>{"ten", "fifty"}));
}

TEST_F(SettingChoice, WritesTheOptionThatIsSelected) {
  m_choice.select(1);

  EXPECT_EQ(m_defaults.defaults[sizeKey], 50);
  EXPECT_EQ(m_choice.selected(), 1);
  EXPECT_EQ(m_changes, 1);
}

TEST_F(SettingChoice, SeesAChangeFromElsewhere) {
  m_defaults.defaults.set(sizeKey, 50);

  EXPECT_EQ(m_choice.selected(), 1);
  EXPECT_EQ(m_changes, 1);
}

TEST_F(SettingChoice, TellsAValueThatNoOptionHas) {
  m_defaults.defaults.set(sizeKey, 123);

  EXPECT_EQ(m_choice.selected(), std::nullopt);
  EXPECT_EQ(m_choice.otherText(), "123");
}

TEST_F(SettingChoice, IgnoresAnOptionThatIsNotThere) {
  m_choice.select(2);

  EXPECT_EQ(m_defaults.defaults[sizeKey], 10);
  EXPECT_EQ(m_changes, 0);
}

TEST_F(SettingChoice, TakesAnAbsentValueForAnOption) {
  quillmonger::SettingChoice choice(m_defaults.defaults, wordKey, {{std::nullopt, "none"}, {"some", "some"}}, [] {});
  EXPECT_EQ(choice.selected(), 0);

  choice.select(1);
  EXPECT_EQ(m_defaults.defaults[wordKey], "some");
  choice.select(0);
  EXPECT_EQ(m_defaults.suite.objectForKey("word"), std::nullopt);
}

}  // namespace
