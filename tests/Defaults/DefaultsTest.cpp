#include "Defaults/Defaults.h"

#include <gtest/gtest.h>

namespace {

using defaults::Defaults;
using defaults::Key;
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

TEST(Defaults, ReadsWritesAndFollowsAKeyWithAStoreOfItsOwnThere) {
  UserDefaults standard;
  UserDefaults own;
  Defaults settings(standard);
  const Key<bool> key("flag", true, own);
  settings.declare(key);
  int count = 0;
  const auto observation = settings.observe(key, ObservationOptions::none, [&](const auto&) { ++count; });
  const auto updates = settings.updates(key, Defaults::Initial::no, [&](bool) { ++count; });
  const auto subscription = settings.publisher({key}, ObservationOptions::none).subscribe([&] { ++count; });

  settings.set(key, false);
  settings.set(flag, true);

  EXPECT_FALSE(settings[key]);
  EXPECT_EQ(count, 3);
  EXPECT_EQ(own.storedObjects(), (defaults::Objects{{"flag", false}}));
  settings.reset(key);
  EXPECT_EQ(own.dictionaryRepresentation(), (defaults::Objects{{"flag", true}}));
  EXPECT_EQ(standard.dictionaryRepresentation(), (defaults::Objects{{"flag", true}}));
}

}  // namespace
