#include <gtest/gtest.h>

#include <thread>

#include "Defaults/Defaults.h"

namespace {

using namespace defaults;

const Key<bool> flag{"flag", true};

class WithoutPropagation : public testing::Test {
 protected:
  std::function<void(const BaseChange&)> counting() {
    return [this](const BaseChange&) { ++count; };
  }

  UserDefaults store;
  Defaults settings{store};
  int count = 0;
  UserDefaultsKeyObservation one = settings.observe(flag, ObservationOptions::prior, [this](const auto&) { ++count; });
  CompositeUserDefaultsKeyObservation several{{{store, "flag"}}, ObservationOptions::none, counting()};
};

TEST_F(WithoutPropagation, AWriteCallsNoCallbackOfItsThread) {
  Defaults::withoutPropagation([&] { settings.set(flag, false); });

  EXPECT_FALSE(settings[flag]);
  EXPECT_EQ(count, 0);
}

TEST_F(WithoutPropagation, TheSameWriteOfAnotherThreadCallsThemThere) {
  Defaults::withoutPropagation([&] { std::thread([&] { settings.set(flag, false); }).join(); });

  EXPECT_EQ(count, 3);
}

TEST_F(WithoutPropagation, TheWritesAfterItCallThemAgain) {
  Defaults::withoutPropagation([] {});
  settings.set(flag, false);

  EXPECT_EQ(count, 3);
}

TEST_F(WithoutPropagation, IsNotNested) {
  Defaults::withoutPropagation([&] {
    Defaults::withoutPropagation([] {});
    settings.set(flag, false);
  });

  EXPECT_EQ(count, 3);
}

TEST_F(WithoutPropagation, EndsWithABodyThatThrows) {
  EXPECT_THROW(Defaults::withoutPropagation([] { throw 1; }), int);
  settings.set(flag, false);

  EXPECT_EQ(count, 3);
}

TEST_F(WithoutPropagation, HoldsBackTheInitialNoticeToo) {
  Defaults::withoutPropagation([&] {
    const auto observation = settings.observe(flag, ObservationOptions::initial, [this](const auto&) { ++count; });
  });

  EXPECT_EQ(count, 0);
}

}  // namespace
