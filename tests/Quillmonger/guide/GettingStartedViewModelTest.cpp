#include "Quillmonger/guide/GettingStartedViewModel.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using quillmonger::GettingStartedViewModel;
using quillmonger::LaunchScreen;

const std::vector flow{LaunchScreen::welcome,    LaunchScreen::startup,      LaunchScreen::paste,
                       LaunchScreen::formatting, LaunchScreen::search,       LaunchScreen::preview,
                       LaunchScreen::settings,   LaunchScreen::accessibility};

class GettingStarted : public testing::Test {
 protected:
  [[nodiscard]] LaunchScreen screen() { return m_guide.currentScreen().value(); }
  void goTo(LaunchScreen wanted) {
    while (screen() != wanted)
      m_guide.forward();
  }

  int m_quitCount = 0;
  int m_finishCount = 0;
  GettingStartedViewModel m_guide{{[this] { ++m_quitCount; }, [this] { ++m_finishCount; }}};
};

TEST_F(GettingStarted, BeginsWithTheWelcome) { EXPECT_EQ(screen(), LaunchScreen::welcome); }

TEST_F(GettingStarted, GoingForwardWalksTheEightScreensInTheirOrder) {
  std::vector<LaunchScreen> seen{screen()};
  for (int step = 0; step < 7; ++step) {
    m_guide.forward();
    seen.push_back(screen());
  }

  EXPECT_EQ(seen, flow);
  EXPECT_EQ(m_finishCount, 0);
}

TEST_F(GettingStarted, GoingBackWalksTheEightScreensInTheOppositeOrder) {
  goTo(LaunchScreen::accessibility);

  std::vector<LaunchScreen> seen{screen()};
  for (int step = 0; step < 7; ++step) {
    m_guide.back();
    seen.push_back(screen());
  }

  EXPECT_EQ(seen, std::vector(flow.rbegin(), flow.rend()));
  EXPECT_EQ(m_quitCount, 0);
}

TEST_F(GettingStarted, TheBackButtonOfTheWelcomeQuits) {
  m_guide.back();

  EXPECT_EQ(m_quitCount, 1);
  EXPECT_EQ(m_finishCount, 0);
}

TEST_F(GettingStarted, TheForwardButtonOfTheLastScreenFinishes) {
  goTo(LaunchScreen::accessibility);

  m_guide.forward();

  EXPECT_EQ(m_finishCount, 1);
  EXPECT_EQ(m_quitCount, 0);
}

TEST_F(GettingStarted, WalkingNeitherQuitsNorFinishes) {
  m_guide.showPrevious();
  EXPECT_EQ(screen(), LaunchScreen::welcome);

  goTo(LaunchScreen::accessibility);
  m_guide.showNext();

  EXPECT_EQ(screen(), LaunchScreen::accessibility);
  EXPECT_EQ(m_quitCount + m_finishCount, 0);
}

TEST_F(GettingStarted, WalkingGoesBothWays) {
  m_guide.showNext();
  m_guide.showNext();
  m_guide.showPrevious();

  EXPECT_EQ(screen(), LaunchScreen::startup);
}

TEST(LaunchScreens, AreOrderedByName) {
  EXPECT_EQ(static_cast<int>(LaunchScreen::accessibility), 0);
  EXPECT_EQ(static_cast<int>(LaunchScreen::formatting), 1);
  EXPECT_EQ(static_cast<int>(LaunchScreen::paste), 2);
  EXPECT_EQ(static_cast<int>(LaunchScreen::preview), 3);
  EXPECT_EQ(static_cast<int>(LaunchScreen::search), 4);
  EXPECT_EQ(static_cast<int>(LaunchScreen::settings), 5);
  EXPECT_EQ(static_cast<int>(LaunchScreen::startup), 6);
  EXPECT_EQ(static_cast<int>(LaunchScreen::welcome), 7);
}

}  // namespace
