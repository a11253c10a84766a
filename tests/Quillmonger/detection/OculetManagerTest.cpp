#include "Quillmonger/detection/OculetManager.h"

#include <gtest/gtest.h>

#include <string>

#include "Foundation/Text.h"

namespace quillmonger {

namespace {

struct FirstResult final : OculetDetectionResult {};
struct SecondResult final : OculetDetectionResult {};

template <typename Result>
class Always final : public OculetDetectable {
  std::unique_ptr<const OculetDetectionResult> detect(std::string_view /*text*/) const override {
    return std::make_unique<const Result>();
  }
  bool mayDetect(std::string_view /*start*/) const override { return true; }
};

class Never final : public OculetDetectable {
  std::unique_ptr<const OculetDetectionResult> detect(std::string_view /*text*/) const override { return nullptr; }
  bool mayDetect(std::string_view /*start*/) const override { return false; }
};

OculetResults detect(std::string_view text) { return makeOculetManager()->detect(text); }

TEST(OculetManagerTest, RunsEveryDetectorInOrderAndLeavesOutThoseThatFindNothing) {
  OculetManager::Detectors detectors;
  detectors.push_back(std::make_unique<Always<SecondResult>>());
  detectors.push_back(std::make_unique<Never>());
  detectors.push_back(std::make_unique<Always<FirstResult>>());
  detectors.push_back(std::make_unique<Always<SecondResult>>());

  const OculetResults results = OculetManager(std::move(detectors)).detect("");

  ASSERT_EQ(results.size(), 3U);
  EXPECT_NE(dynamic_cast<const SecondResult*>(results[0].get()), nullptr);
  EXPECT_NE(dynamic_cast<const FirstResult*>(results[1].get()), nullptr);
  EXPECT_NE(dynamic_cast<const SecondResult*>(results[2].get()), nullptr);
}

TEST(OculetManagerTest, TheEmptyTextOfAnImageGivesNothing) { EXPECT_TRUE(detect("").empty()); }

TEST(OculetManagerTest, AFileUrlGivesNothing) { EXPECT_TRUE(detect("file:///tmp/a b.txt").empty()); }

TEST(OculetManagerTest, AnIntegerGivesExactlyADate) {
  const OculetResults results = detect("123");

  ASSERT_EQ(results.size(), 1U);
  ASSERT_NE(dateResult(results), nullptr);
  EXPECT_EQ(dateResult(results)->date.time_since_epoch().count(), 123);
}

TEST(OculetManagerTest, AYearGivesExactlyADate) {
  const OculetResults results = detect("2024");

  ASSERT_EQ(results.size(), 1U);
  EXPECT_NE(dateResult(results), nullptr);
}

TEST(OculetManagerTest, AnArrayGivesExactlyJson) {
  for (const std::string text : {"[1]", "[1, 2]"}) {
    const OculetResults results = detect(text);

    ASSERT_EQ(results.size(), 1U);
    ASSERT_NE(jsonResult(results), nullptr);
    EXPECT_EQ(jsonResult(results)->json, text);
  }
}

TEST(OculetManagerTest, ATrimmedColorGivesAColor) {
  EXPECT_TRUE(detect("  #FFF\n").empty());

  const OculetResults results = detect(foundation::trimmed("  #FFF\n"));

  ASSERT_EQ(results.size(), 1U);
  ASSERT_NE(colorResult(results), nullptr);
  EXPECT_EQ(colorComponents(*colorResult(results), ColorSpace::genericRGB), RGBColor(1, 1, 1));
}

TEST(OculetManagerTest, TheChainIsDateThenColorThenJson) {
  const auto detectors = makeDetectors();

  ASSERT_EQ(detectors.size(), 3U);
  EXPECT_NE(dynamic_cast<const DateDetector*>(detectors[0].get()), nullptr);
  EXPECT_NE(dynamic_cast<const ColorDetector*>(detectors[1].get()), nullptr);
  EXPECT_NE(dynamic_cast<const JsonDetector*>(detectors[2].get()), nullptr);
}

TEST(OculetResultsTest, TheFirstResultOfAKindCounts) {
  OculetResults results;
  results.push_back(std::make_unique<const JsonDetector::JsonResult>("[]"));
  results.push_back(std::make_unique<const DateDetector::DateResult>(Instant(std::chrono::duration<double>(1))));
  results.push_back(std::make_unique<const DateDetector::DateResult>(Instant(std::chrono::duration<double>(2))));
  results.push_back(std::make_unique<const JsonDetector::JsonResult>("{}"));

  EXPECT_EQ(dateResult(results)->date.time_since_epoch().count(), 1);
  EXPECT_EQ(jsonResult(results)->json, "[]");
  EXPECT_EQ(colorResult(results), nullptr);
}

TEST(OculetResultsTest, NoResultsHoldNothing) {
  EXPECT_EQ(dateResult({}), nullptr);
  EXPECT_EQ(colorResult({}), nullptr);
  EXPECT_EQ(jsonResult({}), nullptr);
}

}  // namespace

}  // namespace quillmonger
