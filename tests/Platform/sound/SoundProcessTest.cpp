#include "Platform/sound/SoundProcess.h"

#include <gtest/gtest.h>

#include <QTest>
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <memory>
#include <numeric>
#include <string>
#include <vector>

#include "Platform/sound/WavFile.h"
#include "tests/Platform/sound/PrivateSoundServer.h"

namespace {

using Samples = std::vector<std::int16_t>;
using Player = std::unique_ptr<quillmonger::AudioPlayer>;

std::string place(const std::string& name) { return std::string(QUILLMONGER_SOUNDS) + "/" + name + ".wav"; }

Player makePlayer(const std::string& name, float volume) {
  auto player = platform::SoundProcess::factory(QUILLMONGER_SOUND_PLAYER)(place(name));
  if (!player) throw std::runtime_error(player.error().message);
  player.value()->setVolume(volume);
  return std::move(player.value());
}

Samples samplesOf(const std::string& name) {
  std::ifstream file(place(name), std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(file), {}};
  const auto samples = platform::WavFile::parse(bytes).value().samples;
  Samples result(samples.size() / 2);
  std::memcpy(result.data(), samples.data(), samples.size());
  return result;
}

int loudest(const Samples& samples) {
  int peak = 0;
  for (const int sample : samples)
    peak = std::max(peak, std::abs(sample));
  return peak;
}

// The first sample that is not silence.
Samples::const_iterator beginOfSound(const Samples& samples) {
  return std::ranges::find_if(samples, [](int sample) { return std::abs(sample) > 40; });
}

// How what was heard compares with what was played.
struct Comparison {
  double likeness = 0;  // 1 is the same form
  double level = 0;     // how much louder
};

// The first moments do not count: the server mixes a new sound into what it has already given its listeners.
Comparison compare(const Samples& heard, const Samples& played) {
  constexpr std::ptrdiff_t skipped = 1000;
  const std::vector<double> expected(played.begin() + skipped, played.end());
  const double power = std::inner_product(expected.begin(), expected.end(), expected.begin(), 0.0);
  const auto first = std::max<std::ptrdiff_t>(0, beginOfSound(heard) - heard.begin() - 100);
  const auto last = std::min(first + skipped + 200, std::ssize(heard) - std::ssize(expected));
  Comparison best;
  for (auto from = heard.begin() + first; from < heard.begin() + last; ++from) {
    const auto to = from + std::ssize(expected);
    const double shared = std::inner_product(from, to, expected.begin(), 0.0);
    const double own = std::inner_product(from, to, from, 0.0);
    const double likeness = own > 0 ? shared / std::sqrt(own * power) : 0;
    if (likeness > best.likeness) best = {likeness, shared / power};
  }
  return best;
}

class SoundProcess : public testing::Test {
 protected:
  // What is heard from now until nothing plays any more.
  Samples heardOf(const std::string& name, float volume) {
    m_server.startListening();
    const auto player = makePlayer(name, volume);
    player->play();
    EXPECT_TRUE(QTest::qWaitFor([this] { return loudest(m_server.heard()) > 40; }, 10000));
    EXPECT_TRUE(waitForSilence());
    return m_server.heard();
  }
  // A fifth of a second in which nothing is heard.
  [[nodiscard]] bool waitForSilence() {
    return QTest::qWaitFor(
        [this] {
          const auto heard = m_server.heard();
          constexpr std::size_t count = 8820;
          return heard.size() > count && loudest({heard.end() - count, heard.end()}) == 0;
        },
        10000);
  }

  testsupport::PrivateSoundServer m_server;
};

TEST_F(SoundProcess, PlaysTheFileAsItIs) {
  const auto heard = heardOf("air_pump_01", 1);

  const auto result = compare(heard, samplesOf("air_pump_01"));
  EXPECT_GT(result.likeness, 0.999);
  EXPECT_NEAR(result.level, 1, 0.01);
}

TEST_F(SoundProcess, PlaysAtItsVolume) {
  const auto heard = heardOf("air_pump_06", 0.25F);

  EXPECT_NEAR(compare(heard, samplesOf("air_pump_06")).level, 0.25, 0.01);
}

TEST_F(SoundProcess, PlaysTheBoostLouderThanRecorded) {
  const auto heard = heardOf("air_pump_short", 1.6F);

  const auto result = compare(heard, samplesOf("air_pump_short"));
  EXPECT_GT(result.likeness, 0.999);
  EXPECT_NEAR(result.level, 1.6, 0.01);
}

TEST_F(SoundProcess, PlaysSilentlyAtVolumeZero) {
  m_server.startListening();
  const auto player = makePlayer("air_pump_12", 0);

  player->play();
  EXPECT_TRUE(QTest::qWaitFor([this] { return m_server.hasStream(); }, 10000));
  EXPECT_TRUE(QTest::qWaitFor([this] { return !m_server.hasStream(); }, 10000));

  EXPECT_EQ(loudest(m_server.heard()), 0);
}

TEST_F(SoundProcess, EndsItsSoundInTheMiddleWhenItGoes) {
  m_server.startListening();
  auto player = makePlayer("air_pump_12", 1);
  player->play();
  EXPECT_TRUE(QTest::qWaitFor([this] { return loudest(m_server.heard()) > 1000; }, 10000));

  player.reset();
  EXPECT_TRUE(waitForSilence());

  const auto heard = m_server.heard();
  const auto silent = std::find_if(heard.rbegin(), heard.rend(), [](int sample) { return std::abs(sample) > 40; });
  const auto whole = samplesOf("air_pump_12").size();
  EXPECT_LT(silent.base() - beginOfSound(heard), static_cast<std::ptrdiff_t>(whole * 4 / 5));
}

TEST_F(SoundProcess, LeavesOnlyTheSecondOfTwoSoundsAudible) {
  m_server.startListening();
  auto player = makePlayer("air_pump_12", 1);
  player->play();

  player = makePlayer("air_pump_06", 1);
  player->play();
  EXPECT_TRUE(QTest::qWaitFor([this] { return loudest(m_server.heard()) > 40; }, 10000));
  EXPECT_TRUE(waitForSilence());

  EXPECT_GT(compare(m_server.heard(), samplesOf("air_pump_06")).likeness, 0.999);
}

TEST_F(SoundProcess, DoesNotWaitForAServiceThatHangs) {
  m_server.hang();

  // The test's own time limit is what would be broken.
  for (int sound = 0; sound < 100; ++sound)
    makePlayer("air_pump_06", 1)->play();
}

TEST(SoundProcessWithoutService, IsSilentAndEndsAtOnce) {
  setenv("PULSE_SERVER", "unix:/nowhere/at/all", 1);
  QProcess process;

  process.start(QStringLiteral(QUILLMONGER_SOUND_PLAYER), {QStringLiteral("44100"), QStringLiteral("1")});
  process.closeWriteChannel();
  ASSERT_TRUE(process.waitForFinished(10000));

  EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
  EXPECT_EQ(process.readAllStandardError() + process.readAllStandardOutput(), "");
}

TEST(SoundProcessWithoutService, PlaysNothingWithoutItsProgram) {
  const auto factory = platform::SoundProcess::factory("/nowhere/at/all");

  auto player = factory(place("air_pump_06"));

  ASSERT_TRUE(player);
  player.value()->play();
  QCoreApplication::processEvents();
}

TEST(SoundProcessWithoutService, SaysWhyAFileCantBePlayed) {
  const auto factory = platform::SoundProcess::factory(QUILLMONGER_SOUND_PLAYER);

  EXPECT_EQ(factory("/nowhere/at/all.wav").error().message, "No such file or directory");
  EXPECT_EQ(factory(std::string(QUILLMONGER_SOUNDS) + "/make_sounds.py").error().message, "the file is not a WAV file");
}

}  // namespace
