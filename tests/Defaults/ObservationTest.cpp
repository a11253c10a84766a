#include <gtest/gtest.h>

#include <memory>

#include "Defaults/Defaults.h"

namespace {

using namespace defaults;

const Key<std::int64_t> number{"number", 10};
const Key<std::string> name{"name", "x"};

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

/// Records what it hears.
class Recorder {
 public:
  std::function<void(const KeyChange<std::int64_t>&)> receiver() {
    return [this](const auto& change) {
      EXPECT_EQ(change.kind, ChangeKind::setting);
      m_seen.push_back({change.isPrior, change.newValue, change.oldValue});
    };
  }
  [[nodiscard]] const std::vector<Seen>& seen() const { return m_seen; }

 private:
  std::vector<Seen> m_seen;
};

class ObservationOfOneKey : public testing::TestWithParam<ObservationCase> {
 protected:
  UserDefaults store;
  Defaults settings{store};
  Recorder recorder;
};

TEST_P(ObservationOfOneKey, TellsWhatItsOptionsAskFor) {
  const auto observation = settings.observe(number, GetParam().options, recorder.receiver());

  settings.set(number, 50);

  EXPECT_EQ(recorder.seen(), GetParam().expected);
}

TEST_P(ObservationOfOneKey, IsPublishedWithTheSameNotices) {
  const auto publisher = settings.publisher(number, GetParam().options);
  const auto subscription = publisher.subscribe(recorder.receiver());

  settings.set(number, 50);

  EXPECT_EQ(recorder.seen(), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Options, ObservationOfOneKey,
    testing::Values(ObservationCase{"None", ObservationOptions::none, {{false, 50, 10}}},
                    ObservationCase{"Initial", ObservationOptions::initial, {{false, 10, 10}, {false, 50, 10}}},
                    ObservationCase{"Prior", ObservationOptions::prior, {{true, 10, 10}, {false, 50, 10}}},
                    ObservationCase{
                        "InitialAndPrior", ObservationOptions::initialAndPrior, {{false, 10, 10}, {false, 50, 10}}}),
    [](const auto& row) { return row.param.name; });

class Observation : public testing::Test {
 protected:
  UserDefaults store;
  Defaults settings{store};
  int count = 0;
};

TEST_F(Observation, GivesTheDefaultInPlaceOfAValueOfTheWrongKind) {
  Recorder recorder;
  store.setObject("number", std::string("ten"));
  const auto observation = settings.observe(number, ObservationOptions::none, recorder.receiver());

  store.setObject("number", true);

  EXPECT_EQ(recorder.seen(), (std::vector<Seen>{{false, 10, 10}}));
}

TEST_F(Observation, GivesTheStoredFormsToTheUntypedCallback) {
  BaseChange seen;
  const UserDefaultsKeyObservation observation(store, "name", ObservationOptions::none,
                                               [&](const BaseChange& change) { seen = change; });

  settings.set(name, "y");

  EXPECT_EQ(seen.kind, ChangeKind::setting);
  EXPECT_EQ(seen.newValue, Object(std::string("y")));
  EXPECT_EQ(seen.oldValue, std::nullopt);
}

TEST_F(Observation, EndsWithItsDestruction) {
  {
    const auto observation = settings.observe(number, ObservationOptions::none, [&](const auto&) { ++count; });
    settings.set(number, 1);
  }

  settings.set(number, 2);

  EXPECT_EQ(count, 1);
}

TEST_F(Observation, EndsWhenItIsInvalidated) {
  auto observation = settings.observe(number, ObservationOptions::none, [&](const auto&) { ++count; });

  observation.invalidate();
  observation.invalidate();
  settings.set(number, 1);

  EXPECT_EQ(count, 0);
}

TEST_F(Observation, MayBeInvalidatedByItsCallback) {
  std::optional<UserDefaultsKeyObservation> observation;
  observation.emplace(store, "number", ObservationOptions::none, [&](const BaseChange&) {
    ++count;
    observation->invalidate();
  });

  settings.set(number, 1);
  settings.set(number, 2);

  EXPECT_EQ(count, 1);
}

TEST_F(Observation, EndsWhenItsOwnerGoes) {
  auto owner = std::make_shared<int>();
  auto observation = settings.observe(number, ObservationOptions::none, [&](const auto&) { ++count; });
  observation.tieToLifetime(owner);

  settings.set(number, 1);
  owner.reset();
  settings.set(number, 2);

  EXPECT_EQ(count, 1);
}

TEST_F(Observation, LivesAsLongAsItsOwnerWithoutBeingHeld) {
  auto owner = std::make_shared<int>();
  settings.observe(number, ObservationOptions::none, [&](const auto&) { ++count; }).tieToLifetime(owner);

  settings.set(number, 1);
  EXPECT_EQ(count, 1);
  owner.reset();
  settings.set(number, 2);

  EXPECT_EQ(count, 1);
}

TEST_F(Observation, EndsWhenItIsInvalidatedAheadOfItsOwner) {
  const auto owner = std::make_shared<int>();
  auto observation = settings.observe(number, ObservationOptions::none, [&](const auto&) { ++count; });
  observation.tieToLifetime(owner);

  observation.invalidate();
  settings.set(number, 1);

  EXPECT_EQ(count, 0);
}

TEST_F(Observation, LetsGoOfWhatItsCallbackHoldsAtTheFirstChangeAfterItsOwnerWent) {
  auto owner = std::make_shared<int>();
  auto held = std::make_shared<int>();
  const std::weak_ptr<int> watch = held;
  settings.observe(number, ObservationOptions::none, [held](const auto&) {}).tieToLifetime(owner);
  held.reset();

  owner.reset();
  settings.set(number, 1);

  EXPECT_TRUE(watch.expired());
}

TEST_F(Observation, LetsGoOfWhatItsCallbackHoldsWithTheStore) {
  const auto owner = std::make_shared<int>();
  auto held = std::make_shared<int>();
  const std::weak_ptr<int> watch = held;
  {
    UserDefaults other;
    Defaults(other).observe(number, ObservationOptions::none, [held](const auto&) {}).tieToLifetime(owner);
    held.reset();
  }

  EXPECT_TRUE(watch.expired());
}

TEST_F(Observation, MayOutliveItsStore) {
  auto other = std::make_unique<UserDefaults>();
  auto observation = Defaults(*other).observe(number, ObservationOptions::none, [&](const auto&) { ++count; });

  other.reset();
  observation.invalidate();

  EXPECT_EQ(count, 0);
}

TEST_F(Observation, IsPublishedToEachReceiverFromItsOwnStart) {
  Recorder early;
  Recorder late;
  const auto publisher = settings.publisher(number, ObservationOptions::initial);

  const auto first = publisher.subscribe(early.receiver());
  settings.set(number, 1);
  const auto second = publisher.subscribe(late.receiver());

  EXPECT_EQ(early.seen(), (std::vector<Seen>{{false, 10, 10}, {false, 1, 10}}));
  EXPECT_EQ(late.seen(), (std::vector<Seen>{{false, 1, 10}}));
}

TEST_F(Observation, IsNotMadeByAPublisherThatNobodySubscribedTo) {
  {
    const auto publisher = settings.publisher(number, ObservationOptions::initial);
    publisher.subscribe([&](const auto&) { ++count; }).cancel();
  }

  settings.set(number, 1);

  EXPECT_EQ(count, 1);
}

}  // namespace
