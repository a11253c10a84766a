#include "Defaults/Toggle.h"

#include <gtest/gtest.h>

#include <memory>

#include "tests/support/TestDefaults.h"

namespace {

using defaults::Key;
using defaults::Observable;
using defaults::Toggle;

const Key<bool> flag{"flag", true};
const Key<std::int64_t> number{"number", 10};

class ObservableTest : public testing::Test {
 protected:
  testsupport::TestDefaults test;
  defaults::Defaults& settings = test.defaults;
};

TEST_F(ObservableTest, ReadsAndWritesTheSetting) {
  Observable<std::int64_t> observable(settings, number);
  EXPECT_EQ(observable.value(), 10);

  observable.set(50);

  EXPECT_EQ(settings[number], 50);
  EXPECT_EQ(observable.value(), 50);
}

TEST_F(ObservableTest, RemovesTheStoredValueWhenItIsReset) {
  Observable<std::int64_t> observable(settings, number);
  observable.set(50);

  observable.reset();

  EXPECT_EQ(observable.value(), 10);
  EXPECT_TRUE(test.suite.storedObjects().empty());
}

TEST_F(ObservableTest, FiresWithEachChangeWhoeverMadeItAndNotAtTheStart) {
  Observable<std::int64_t> observable(settings, number);
  std::vector<std::int64_t> shown;
  const auto hold = observable.objectWillChange().subscribe([&](const auto&) { shown.push_back(observable.value()); });

  observable.set(50);
  settings.set(number, 60);
  observable.reset();
  settings.set(flag, false);

  EXPECT_EQ(shown, (std::vector<std::int64_t>{50, 60, 10}));
}

TEST_F(ObservableTest, FiresNoMoreOnceItIsDestroyed) {
  auto observable = std::make_unique<Observable<std::int64_t>>(settings, number);
  int count = 0;
  const auto hold = observable->objectWillChange().subscribe([&](const auto&) { ++count; });

  observable.reset();
  settings.set(number, 60);

  EXPECT_EQ(count, 0);
}

class ToggleTest : public ObservableTest {
 protected:
  std::vector<bool> changes;
  Toggle toggle{"title", settings, flag, [this](bool isOn) { changes.push_back(isOn); }};
};

TEST_F(ToggleTest, HasALabelAndShowsTheSetting) {
  EXPECT_EQ(toggle.label(), "title");
  EXPECT_TRUE(toggle.isOn());
  EXPECT_TRUE(changes.empty());
}

TEST_F(ToggleTest, WritesTheSettingWhenItIsFlipped) {
  toggle.flip();
  EXPECT_FALSE(settings[flag]);

  toggle.flip();
  EXPECT_TRUE(settings[flag]);
}

TEST_F(ToggleTest, TellsEachNewValueWhoeverSetIt) {
  toggle.flip();
  settings.set(flag, true);
  settings.set(flag, false);
  settings.reset(flag);

  EXPECT_EQ(changes, (std::vector<bool>{false, true, false, true}));
}

TEST_F(ToggleTest, TellsNothingWhenTheValueStaysAsItIs) {
  settings.set(flag, true);

  EXPECT_TRUE(changes.empty());
}

TEST_F(ToggleTest, NeedsNobodyToTell) {
  Toggle silent("title", settings, flag);

  silent.flip();

  EXPECT_FALSE(silent.isOn());
}

}  // namespace
