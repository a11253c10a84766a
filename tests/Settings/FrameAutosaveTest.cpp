#include "Settings/FrameAutosave.h"

#include <gtest/gtest.h>

namespace {

using defaults::Object;
using defaults::UserDefaults;
using settings::Frame;

TEST(FrameAutosave, HasNothingTheFirstTime) {
  UserDefaults store;

  EXPECT_EQ(settings::FrameAutosave(store).frame("window"), std::nullopt);
}

TEST(FrameAutosave, RemembersTheFrameUnderItsName) {
  UserDefaults store;
  settings::FrameAutosave autosave(store);

  autosave.save("window", {-20, 30, 500, 400});
  autosave.save("another", {1, 2, 3, 4});

  EXPECT_EQ(autosave.frame("window"), (Frame{-20, 30, 500, 400}));
  EXPECT_EQ(settings::FrameAutosave(store).frame("another"), (Frame{1, 2, 3, 4}));
}

class FrameAutosaveRefuses : public testing::TestWithParam<const char*> {};

TEST_P(FrameAutosaveRefuses, WhatIsNoPlaceOfAnyScreen) {
  UserDefaults store({{"window", Object(std::string(GetParam()))}});

  EXPECT_EQ(settings::FrameAutosave(store).frame("window"), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(Texts, FrameAutosaveRefuses,
                         testing::Values("", "1 2 3", "1 2 3 4 5", "a b c d", "nan 0 0 0", "1e300 0 10 10", "0 0 -1 10",
                                         "0 0 10 inf"));

TEST(FrameAutosave, RefusesAValueThatIsNoText) {
  UserDefaults store({{"window", Object(true)}});

  EXPECT_EQ(settings::FrameAutosave(store).frame("window"), std::nullopt);
}

}  // namespace
