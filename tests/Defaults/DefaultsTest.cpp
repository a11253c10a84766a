#include "Defaults/Defaults.h"

#include <gtest/gtest.h>

#include <thread>

namespace {

using defaults::Defaults;
using defaults::Key;
using defaults::KeyChange;
using defaults::ObservationOptions;
using defaults::UserDefaults;

const Key<bool> flag{"flag", true};
const Key<std::int64_t> number{"number", 10};
const Key<std::optional<std::int64_t>> choice{"choice", std::nullopt};
const Key<std::optional<std::int64_t>> choiceWithDefault{"choiceWithDefault", 3};

TEST(Defaults, ReadsEveryKeyOfAFreshStoreAsItsDefault) {
  UserDefaults store;
  const Defaults settings(store);

  EXPECT_TRUE(settings[flag]);
  EXPECT_EQ(settings[number], 10);
}

TEST(Defaults, AnswersWithADeclaredDefaultInTheUntypedStoreToo) {
  UserDefaults store;
  Defaults settings(store);

  settings.declare(number);

  EXPECT_EQ(store.objectForKey("number"), defaults::Object(std::int64_t{10}));
  EXPECT_TRUE(store.storedObjects().empty());
}

TEST(Defaults, RegistersNothingForAnEmptyOptionalAndReadsNothing) {
  UserDefaults store;
  Defaults settings(store);

  settings.declare(choice);

  EXPECT_TRUE(store.dictionaryRepresentation().empty());
  EXPECT_EQ(settings[choice], std::nullopt);
}

TEST(Defaults, RemovesTheStoredEntryWhenAnEmptyOptionalIsWritten) {
  UserDefaults store;
  Defaults settings(store);
  settings.set(choiceWithDefault, {7});

  settings.set(choiceWithDefault, {});

  EXPECT_TRUE(store.storedObjects().empty());
  EXPECT_EQ(settings[choiceWithDefault], 3);
}

TEST(Defaults, ReadsAnObjectOfTheWrongKindAsTheDefaultAndLeavesIt) {
  UserDefaults store({{"number", std::string("ten")}});
  const Defaults settings(store);

  EXPECT_EQ(settings[number], 10);
  EXPECT_EQ(store.objectForKey("number"), defaults::Object(std::string("ten")));
}

TEST(Defaults, ReadsAsTheDefaultAgainAfterReset) {
  UserDefaults store;
  Defaults settings(store);
  settings.set(flag, false);
  settings.set(number, std::int64_t{50});

  settings.reset(flag, number);

  EXPECT_TRUE(settings[flag]);
  EXPECT_EQ(settings[number], 10);
}

TEST(Defaults, RemovesEveryStoredObjectButNoRegisteredOne) {
  UserDefaults store;
  Defaults settings(store);
  settings.declare(flag);
  settings.set(number, std::int64_t{50});

  store.removeAll();

  EXPECT_EQ(store.dictionaryRepresentation(), (defaults::Objects{{"flag", true}}));
}

struct Seen {
  bool isPrior;
  std::int64_t newValue;
  std::int64_t oldValue;
  bool operator==(const Seen&) const = default;
};

struct ObservationCase {
  const char* name;
  ObservationOptions options;
  std::vector<Seen> expected;
};

class Observation : public testing::TestWithParam<ObservationCase> {};

TEST_P(Observation, TellsWhatItsOptionsAskFor) {
  UserDefaults store;
  Defaults settings(store);
  std::vector<Seen> seen;
  const auto hold = settings.observe<std::int64_t>(number, GetParam().options, [&](const auto& change) {
    seen.push_back({change.isPrior, change.newValue, change.oldValue});
  });

  settings.set(number, std::int64_t{50});

  EXPECT_EQ(seen, GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Options, Observation,
    testing::Values(ObservationCase{"None", ObservationOptions::none, {{false, 50, 10}}},
                    ObservationCase{"Initial", ObservationOptions::initial, {{false, 10, 10}, {false, 50, 10}}},
                    ObservationCase{"Prior", ObservationOptions::prior, {{true, 10, 10}, {false, 50, 10}}},
                    ObservationCase{
                        "InitialAndPrior", ObservationOptions::initialAndPrior, {{false, 10, 10}, {false, 50, 10}}}),
    [](const auto& row) { return row.param.name; });

TEST(Defaults, TellsNothingOfOtherKeysAndNothingAfterTheEndOfTheObservation) {
  UserDefaults store;
  Defaults settings(store);
  int count = 0;
  auto hold = settings.updates<bool>(flag, Defaults::Initial::no, [&](bool) { ++count; });

  settings.set(number, std::int64_t{1});
  settings.set(flag, false);
  hold.cancel();
  settings.set(flag, true);

  EXPECT_EQ(count, 1);
}

TEST(Defaults, UpdatesStartWithThePresentValueWhenAsked) {
  UserDefaults store;
  Defaults settings(store);
  std::vector<std::int64_t> seen;
  const auto hold = settings.updates<std::int64_t>(number, Defaults::Initial::yes,
                                                   [&](std::int64_t value) { seen.push_back(value); });

  settings.set(number, std::int64_t{50});
  settings.reset(number);

  EXPECT_EQ(seen, (std::vector<std::int64_t>{10, 50, 10}));
}

TEST(Defaults, EveryReceiverEndsWithTheStandingValueWhenOneOfThemChangesTheKey) {
  UserDefaults store;
  Defaults settings(store);
  const auto limiting = settings.updates<std::int64_t>(number, Defaults::Initial::no, [&](std::int64_t value) {
    if (value > 100) settings.set(number, std::int64_t{100});
  });
  std::vector<std::int64_t> seen;
  const auto following =
      settings.updates<std::int64_t>(number, Defaults::Initial::no, [&](std::int64_t value) { seen.push_back(value); });

  settings.set(number, std::int64_t{500});

  EXPECT_EQ(seen.back(), 100);
}

TEST(Defaults, AnObservationMayOutliveItsStore) {
  foundation::Subscription hold;
  {
    UserDefaults store;
    Defaults settings(store);
    hold = settings.updates<bool>(flag, Defaults::Initial::no, [](bool) {});
  }

  hold.cancel();

  EXPECT_FALSE(hold.isActive());
}

TEST(Defaults, AWriteWithoutPropagationIsToldOnNoCallbackOfThatThread) {
  UserDefaults store;
  Defaults settings(store);
  int count = 0;
  const auto hold = settings.updates<bool>(flag, Defaults::Initial::no, [&](bool) { ++count; });

  Defaults::withoutPropagation([&] { settings.set(flag, false); });

  EXPECT_FALSE(settings[flag]);
  EXPECT_EQ(count, 0);
}

TEST(Defaults, AWriteOfAnotherThreadIsToldDuringWithoutPropagation) {
  UserDefaults store;
  Defaults settings(store);
  int count = 0;
  const auto hold = settings.updates<bool>(flag, Defaults::Initial::no, [&](bool) { ++count; });

  Defaults::withoutPropagation([&] { std::thread([&] { settings.set(flag, false); }).join(); });

  EXPECT_EQ(count, 1);
}

TEST(Defaults, WithoutPropagationIsNotNested) {
  UserDefaults store;
  Defaults settings(store);
  int count = 0;
  const auto hold = settings.updates<bool>(flag, Defaults::Initial::no, [&](bool) { ++count; });

  Defaults::withoutPropagation([&] {
    Defaults::withoutPropagation([] {});
    settings.set(flag, false);
  });

  EXPECT_EQ(count, 1);
}

}  // namespace
