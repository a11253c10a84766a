#include "Platform/freedesktop/Succession.h"

#include <gtest/gtest.h>

namespace platform {

namespace {

class SuccessionTest : public testing::Test {
 protected:
  static ClipboardSnapshot named(const std::string& name) { return {.types = {name}, .content = {}, .frontmost = {}}; }

  std::vector<std::string> m_delivered;
  Succession m_succession{[this](const ClipboardSnapshot& snapshot) { m_delivered.push_back(snapshot.types.front()); }};
};

using Names = std::vector<std::string>;

}  // namespace

TEST_F(SuccessionTest, DeliversWhatIsCompleteAndHasStood) {
  const auto number = m_succession.begin(1000);
  m_succession.complete(number, named("a"));
  EXPECT_TRUE(m_delivered.empty());

  m_succession.settle(number);

  EXPECT_EQ(m_delivered, Names{"a"});
  EXPECT_FALSE(m_succession.isOpen(number));
}

TEST_F(SuccessionTest, DropsWhatStoodForLessThanTwentyMilliseconds) {
  const auto first = m_succession.begin(1000);
  m_succession.complete(first, named("a"));

  const auto second = m_succession.begin(1019);

  EXPECT_FALSE(m_succession.isOpen(first));
  m_succession.complete(second, named("b"));
  m_succession.settle(second);
  EXPECT_EQ(m_delivered, Names{"b"});
}

TEST_F(SuccessionTest, KeepsWhatStoodForTwentyMilliseconds) {
  const auto first = m_succession.begin(1000);
  m_succession.complete(first, named("a"));

  m_succession.begin(1020);

  EXPECT_EQ(m_delivered, Names{"a"});
}

TEST_F(SuccessionTest, MeasuresAcrossTheWrapOfTheServersClock) {
  const auto first = m_succession.begin(0xFFFFFFFA);
  m_succession.complete(first, named("a"));

  m_succession.begin(14);

  EXPECT_EQ(m_delivered, Names{"a"});
}

TEST_F(SuccessionTest, KeepsTheOrderInWhichTheyCame) {
  const auto first = m_succession.begin(1000);
  const auto second = m_succession.begin(1100);
  m_succession.settle(second);

  m_succession.complete(second, named("b"));
  EXPECT_TRUE(m_delivered.empty());
  m_succession.complete(first, named("a"));

  EXPECT_EQ(m_delivered, (Names{"a", "b"}));
}

TEST_F(SuccessionTest, LetsNewerOnesPassWhatIsReleased) {
  const auto first = m_succession.begin(1000);
  const auto second = m_succession.begin(1100);
  m_succession.settle(second);
  m_succession.complete(second, named("b"));

  m_succession.release(first);
  EXPECT_EQ(m_delivered, Names{"b"});
  m_succession.complete(first, named("a"));

  EXPECT_EQ(m_delivered, (Names{"b", "a"}));
}

TEST_F(SuccessionTest, SkipsWhatHasNothingToHandOn) {
  const auto first = m_succession.begin(1000);
  const auto second = m_succession.begin(1100);
  m_succession.settle(second);
  m_succession.complete(second, named("b"));

  m_succession.complete(first, std::nullopt);

  EXPECT_EQ(m_delivered, Names{"b"});
}

TEST_F(SuccessionTest, CountsOnlyTheFirstCompletion) {
  const auto number = m_succession.begin(1000);
  m_succession.complete(number, std::nullopt);
  m_succession.complete(number, named("late"));

  m_succession.settle(number);

  EXPECT_TRUE(m_delivered.empty());
}

}  // namespace platform
