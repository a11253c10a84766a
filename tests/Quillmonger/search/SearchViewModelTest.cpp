#include "Quillmonger/search/SearchViewModel.h"

#include <gtest/gtest.h>

#include <chrono>
#include <limits>
#include <string>
#include <vector>

#include "Quillmonger/settings/SettingsKeys.h"
#include "tests/support/TestDefaults.h"
#include "tests/support/VirtualRunLoop.h"

namespace {

using namespace std::chrono_literals;
namespace keys = quillmonger::keys;
using Terms = std::vector<std::string>;

class SearchViewModelTest : public testing::Test {
 protected:
  // The binding tells the first, empty term after one interval; the tests begin after that.
  void SetUp() override {
    runLoop.advance(1s);
    told = viewModel.debouncedSearchTerm().subscribe([this](const std::string& term) { terms.push_back(term); });
  }
  void type(const std::string& term) { viewModel.searchTerm().set(term); }

  testsupport::VirtualRunLoop runLoop;
  testsupport::TestDefaults settings;
  quillmonger::SearchViewModel viewModel{runLoop, settings.defaults};
  Terms terms;
  foundation::Subscription told;
};

TEST_F(SearchViewModelTest, TellsOneTermAfterThePauseBehindTheLastKeystroke) {
  type("a");
  runLoop.advance(50ms);
  type("ab");
  runLoop.advance(50ms);
  type("abc");
  runLoop.advance(149ms);
  EXPECT_EQ(terms, Terms{});

  runLoop.advance(1ms);

  EXPECT_EQ(terms, Terms{"abc"});
}

TEST_F(SearchViewModelTest, DoesNotRestartThePauseForTheSameTerm) {
  type("abc");
  runLoop.advance(100ms);
  type("abc");

  runLoop.advance(50ms);

  EXPECT_EQ(terms, Terms{"abc"});
}

TEST_F(SearchViewModelTest, TellsATermAgainThatCameBackWithinThePause) {
  type("a");
  runLoop.advance(200ms);
  type("ab");
  runLoop.advance(50ms);
  type("a");

  runLoop.advance(150ms);

  EXPECT_EQ(terms, (Terms{"a", "a"}));
}

TEST_F(SearchViewModelTest, TellsAClearedTermOneIntervalLater) {
  type("a");
  runLoop.advance(1s);

  type("");
  EXPECT_EQ(terms, Terms{"a"});
  runLoop.advance(150ms);

  EXPECT_EQ(terms, (Terms{"a", ""}));
}

TEST_F(SearchViewModelTest, TellsAWaitingTermOneNewIntervalAfterTheSettingChanged) {
  type("abc");
  runLoop.advance(100ms);

  settings.defaults.set(keys::searchDebounceInterval, 0.5);
  runLoop.advance(499ms);
  EXPECT_EQ(terms, Terms{});
  EXPECT_EQ(viewModel.searchTerm().value(), "abc");
  runLoop.advance(1ms);

  EXPECT_EQ(terms, Terms{"abc"});
}

TEST_F(SearchViewModelTest, FollowsTheFieldAfterTheSettingChanged) {
  settings.defaults.set(keys::searchDebounceInterval, 0.5);
  runLoop.advance(1s);
  terms.clear();

  type("abc");
  runLoop.advance(500ms);

  EXPECT_EQ(terms, Terms{"abc"});
}

TEST_F(SearchViewModelTest, TellsATermWithoutAPauseForASettingThatIsNoPause) {
  for (const double setting : {0.0, -1.0, -1e300, std::numeric_limits<double>::quiet_NaN()}) {
    settings.defaults.set(keys::searchDebounceInterval, setting);
    runLoop.advance(0s);
    terms.clear();

    type("abc" + std::to_string(setting));
    runLoop.advance(0s);

    EXPECT_EQ(terms.size(), 1U) << setting;
  }
}

TEST_F(SearchViewModelTest, TellsATermAfterAnHourForASettingThatIsLonger) {
  for (const double setting : {1e6, 1e300, std::numeric_limits<double>::infinity()}) {
    settings.defaults.set(keys::searchDebounceInterval, setting);
    runLoop.advance(1h);
    terms.clear();

    type("abc" + std::to_string(setting));
    runLoop.advance(1h);

    EXPECT_EQ(terms.size(), 1U) << setting;
  }
}

TEST(SearchViewModel, TellsThePresentTermOneIntervalAfterItIsMade) {
  testsupport::VirtualRunLoop runLoop;
  testsupport::TestDefaults settings;
  quillmonger::SearchViewModel viewModel(runLoop, settings.defaults);
  int told = 0;
  const auto subscription = viewModel.debouncedSearchTerm().subscribe([&told](const std::string&) { ++told; });

  runLoop.advance(149ms);
  EXPECT_EQ(told, 0);
  runLoop.advance(1ms);

  EXPECT_EQ(told, 1);
}

}  // namespace
