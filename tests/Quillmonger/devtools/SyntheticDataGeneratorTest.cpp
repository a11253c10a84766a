#include "Quillmonger/devtools/SyntheticDataGenerator.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <limits>
#include <set>
#include <string>
#include <vector>

#include "Quillmonger/capture/PasteboardTypes.h"
#include "Quillmonger/detection/ColorDetector.h"
#include "Quillmonger/detection/DateDetector.h"
#include "tests/support/FakePasteboard.h"
#include "tests/support/VirtualRunLoop.h"

namespace {

using namespace std::chrono_literals;
using quillmonger::SyntheticDataGenerator;
using Texts = std::vector<std::string>;

class SyntheticData : public testing::Test {
 protected:
  // What was written so far, in order; each content has the plain text alone.
  Texts written() {
    m_runLoop.runPosted();
    Texts texts;
    for (const auto& item : m_pasteboard.writes()) {
      EXPECT_EQ(item.representations.size(), 1U);
      const auto& [type, value] = item.representations.front();
      EXPECT_EQ(type, quillmonger::pasteboardtype::NSPasteboardTypeString);
      texts.push_back(value ? value->part(0, 100) : std::string("nothing"));
    }
    return texts;
  }
  void write(SyntheticDataGenerator& generator, SyntheticDataGenerator::EntryPoint entryPoint, int count) {
    for (int time = 0; time < count; ++time) {
      (generator.*entryPoint)();
      m_runLoop.runPosted();
    }
  }

  testsupport::VirtualRunLoop m_runLoop;
  testsupport::FakePasteboard m_pasteboard{m_runLoop};
  SyntheticDataGenerator m_generator{m_pasteboard};
};

TEST_F(SyntheticData, TwoCallsOfWriteSequentialWriteConsecutiveNumbers) {
  write(m_generator, &SyntheticDataGenerator::writeSequential, 2);

  EXPECT_EQ(written(), (Texts{"0", "1"}));
}

TEST_F(SyntheticData, EveryNumberIsRecognisedAsADate) {
  write(m_generator, &SyntheticDataGenerator::writeSequential, 100);

  const quillmonger::DateDetector detector;
  for (const auto& text : written())
    EXPECT_NE(detector.detect(text), nullptr) << text;
}

TEST_F(SyntheticData, EveryColourMatchesTheDetectorAndHasValuesFrom0To255) {
  write(m_generator, &SyntheticDataGenerator::writeToClipboard, 1000);

  const quillmonger::ColorDetector detector;
  std::set<unsigned> seen;
  for (const auto& text : written()) {
    EXPECT_NE(detector.detect(text), nullptr) << text;
    unsigned red = 256;
    unsigned green = 256;
    unsigned blue = 256;
    int length = 0;
    ASSERT_EQ(std::sscanf(text.c_str(), "rgb(%u, %u, %u)%n", &red, &green, &blue, &length), 3);
    EXPECT_EQ(length, static_cast<int>(text.size()));
    EXPECT_LE(std::max({red, green, blue}), 255U);
    seen.insert({red, green, blue});
  }
  // Of 3,000 draws none misses more than a few of the 256 values.
  EXPECT_GT(seen.size(), 240U);
}

TEST_F(SyntheticData, AColourIsMadeOfTheHighestBitsOfEachDraw) {
  std::vector<std::uint64_t> draws{0, std::numeric_limits<std::uint64_t>::max(), std::uint64_t{17} << 56};
  SyntheticDataGenerator generator(m_pasteboard, [&draws] {
    const auto draw = draws.front();
    draws.erase(draws.begin());
    return draw;
  });

  write(generator, &SyntheticDataGenerator::writeToClipboard, 1);

  EXPECT_EQ(written(), Texts{"rgb(0, 255, 17)"});
}

TEST_F(SyntheticData, TheNumberAfterTheLargestStopsTheProcess) {
  SyntheticDataGenerator generator(
      m_pasteboard, [] { return std::uint64_t{0}; }, std::numeric_limits<std::int64_t>::max());

  EXPECT_DEATH(generator.writeSequential(), "There is no next number.");
}

TEST_F(SyntheticData, RepeatsByATimerAsOftenAsAsked) {
  int doneCount = 0;

  m_generator.repeat(m_runLoop, &SyntheticDataGenerator::writeSequential, 2s, 3, [&doneCount] { ++doneCount; });
  m_runLoop.advance(1999ms);
  EXPECT_EQ(written(), Texts());
  m_runLoop.advance(1ms);
  EXPECT_EQ(written(), Texts{"0"});
  m_runLoop.advance(4s);
  EXPECT_EQ(written(), (Texts{"0", "1", "2"}));
  EXPECT_EQ(doneCount, 0);
  m_runLoop.advance(20s);

  EXPECT_EQ(written(), (Texts{"0", "1", "2"}));
  EXPECT_EQ(doneCount, 1);
}

TEST_F(SyntheticData, RepeatingAnewEndsWhatWentOnBefore) {
  m_generator.repeat(m_runLoop, &SyntheticDataGenerator::writeToClipboard, 1s, 3, [] {});
  m_generator.repeat(m_runLoop, &SyntheticDataGenerator::writeSequential, 1s, 2, [] {});

  m_runLoop.advance(10s);

  EXPECT_EQ(written(), (Texts{"0", "1"}));
}

}  // namespace
