#include "Defaults/CompositeUserDefaultsKeyObservation.h"

#include <gtest/gtest.h>

#include <memory>

#include "Defaults/Defaults.h"

namespace {

using namespace defaults;

const Key<bool> flag{"flag", true};
const Key<std::int64_t> number{"number", 10};
const Key<std::string> name{"name", "x"};

class CompositeObservation : public testing::Test {
 protected:
  std::function<void(const BaseChange&)> counting() {
    return [this](const BaseChange&) { ++count; };
  }

  UserDefaults store;
  Defaults settings{store};
  int count = 0;
};

TEST_F(CompositeObservation, TellsOfEachInEachStore) {
  UserDefaults other;
  const CompositeUserDefaultsKeyObservation observation({{store, "number"}, {store, "flag"}, {other, "number"}},
                                                        ObservationOptions::none, counting());

  settings.set(number, 1);
  settings.set(flag, false);
  settings.set(name, "y");
  Defaults(other).set(number, 2);
  Defaults(other).set(flag, false);

  EXPECT_EQ(count, 3);
}

TEST_F(CompositeObservation, StartsWithANoticeOfEachWhenAsked) {
  const CompositeUserDefaultsKeyObservation observation({{store, "number"}, {store, "flag"}},
                                                        ObservationOptions::initial, counting());

  EXPECT_EQ(count, 2);
}

TEST_F(CompositeObservation, TellsAheadOfTheChangeToo) {
  std::vector<bool> priors;
  const CompositeUserDefaultsKeyObservation observation(
      {{store, "number"}, {store, "flag"}}, ObservationOptions::prior,
      [&](const BaseChange& change) { priors.push_back(change.isPrior); });

  settings.set(number, 1);
  settings.set(flag, false);

  EXPECT_EQ(priors, (std::vector<bool>{true, false, true, false}));
}

TEST_F(CompositeObservation, IsTiedToItsOwnerAsAWhole) {
  auto owner = std::make_shared<int>();
  CompositeUserDefaultsKeyObservation({{store, "number"}, {store, "flag"}}, ObservationOptions::none, counting())
      .tieToLifetime(owner);

  settings.set(number, 1);
  settings.set(flag, false);
  EXPECT_EQ(count, 2);
  owner.reset();
  settings.set(number, 2);
  settings.set(flag, true);

  EXPECT_EQ(count, 2);
}

TEST_F(CompositeObservation, MayOutliveOneOfItsStores) {
  auto other = std::make_unique<UserDefaults>();
  CompositeUserDefaultsKeyObservation observation({{*other, "number"}, {store, "number"}}, ObservationOptions::none,
                                                  counting());

  other.reset();
  settings.set(number, 1);
  observation.invalidate();
  settings.set(number, 2);

  EXPECT_EQ(count, 1);
}

TEST_F(CompositeObservation, IsNotSetOffByItsOwnCallbackWithoutPropagation) {
  const CompositeUserDefaultsKeyObservation observation({{store, "number"}, {store, "flag"}}, ObservationOptions::none,
                                                        [&](const BaseChange&) {
                                                          ++count;
                                                          Defaults::withoutPropagation([&] { settings.reset(flag); });
                                                        });

  settings.set(number, 1);

  EXPECT_EQ(count, 1);
}

TEST_F(CompositeObservation, IsPublishedWithoutValues) {
  const auto publisher = settings.publisher({number, flag, name}, ObservationOptions::initial);
  auto subscription = publisher.subscribe([&] { ++count; });
  EXPECT_EQ(count, 3);

  settings.set(number, 1);
  settings.set(flag, false);
  EXPECT_EQ(count, 5);
  subscription.cancel();
  settings.set(number, 2);

  EXPECT_EQ(count, 5);
}

}  // namespace
