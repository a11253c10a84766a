#include "Platform/sound/WavFile.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using platform::WavFile;

std::string number(std::uint32_t value, int bytes) {
  std::string text;
  for (int index = 0; index < bytes; ++index)
    text += static_cast<char>(value >> (8 * index) & 0xFF);
  return text;
}

std::string chunk(const std::string& name, const std::string& content) {
  return name + number(static_cast<std::uint32_t>(content.size()), 4) + content + std::string(content.size() % 2, '\0');
}

std::string format(std::uint16_t encoding = 1, std::uint16_t channels = 1, std::uint32_t rate = 44100,
                   std::uint16_t bits = 16) {
  return chunk("fmt ", number(encoding, 2) + number(channels, 2) + number(rate, 4) + number(0, 4) + number(0, 2) +
                           number(bits, 2));
}

std::string wav(const std::string& chunks) { return chunk("RIFF", "WAVE" + chunks); }

TEST(WavFile, ReadsTheFormatAndTheSamples) {
  const auto bytes = wav(format(1, 2, 48000) + chunk("data", "abcdefgh"));

  const auto file = WavFile::parse(bytes);

  ASSERT_TRUE(file);
  EXPECT_EQ(file.value().channels, 2);
  EXPECT_EQ(file.value().rate, 48000U);
  EXPECT_EQ(file.value().samples, "abcdefgh");
}

TEST(WavFile, PassesOverOtherChunksAndTheirPadding) {
  const auto bytes = wav(chunk("LIST", "odd") + format() + chunk("fact", "1234") + chunk("data", "ab"));

  EXPECT_EQ(WavFile::parse(bytes).value().samples, "ab");
}

TEST(WavFile, TakesWhatIsThereOfSamplesThatAreCutShort) {
  const auto bytes = "RIFF" + number(1000, 4) + "WAVE" + format() + "data" + number(1000, 4) + "abcde";

  EXPECT_EQ(WavFile::parse(bytes).value().samples, "abcd") << "whole frames only";
}

struct Refused {
  const char* name;
  std::string bytes;
};

class WavFileRefusal : public testing::TestWithParam<Refused> {};

TEST_P(WavFileRefusal, SaysWhy) {
  const auto file = WavFile::parse(GetParam().bytes);

  ASSERT_FALSE(file);
  EXPECT_NE(file.error().message, "");
}

INSTANTIATE_TEST_SUITE_P(
    WavFile, WavFileRefusal,
    testing::Values(Refused{"Nothing", ""}, Refused{"AnotherFile", "\x89PNG and so on and so on"},
                    Refused{"OnlyAHead", "RIFF\4\0\0\0WAVE"}, Refused{"NoFormat", wav(chunk("data", "ab"))},
                    Refused{"NoSamples", wav(format())},
                    Refused{"AShortFormat", wav(chunk("fmt ", "ab") + chunk("data", "ab"))},
                    Refused{"EightBits", wav(format(1, 1, 44100, 8) + chunk("data", "ab"))},
                    Refused{"AnotherEncoding", wav(format(3) + chunk("data", "ab"))},
                    Refused{"NoChannel", wav(format(1, 0) + chunk("data", "ab"))},
                    Refused{"ManyChannels", wav(format(1, 6) + chunk("data", "ab"))},
                    Refused{"NoRate", wav(format(1, 1, 0) + chunk("data", "ab"))},
                    Refused{"AChunkWithoutEnd", "RIFF\4\0\0\0WAVELIST\xFF\xFF\xFF\xFF"},
                    Refused{"TooLong", wav(format() + chunk("data", std::string(5'000'000, 'x')))}),
    [](const auto& row) { return row.param.name; });

TEST(Amplification, MultipliesEachSample) {
  EXPECT_EQ(platform::amplified(number(1000, 2) + number(0xFFFF & -1000, 2), 1.6F),
            number(1600, 2) + number(0xFFFF & -1600, 2));
}

TEST(Amplification, IsSilenceAtZero) {
  EXPECT_EQ(platform::amplified(number(1000, 2) + number(0x8000, 2), 0), std::string(4, '\0'));
}

TEST(Amplification, IsCutAtFullScale) {
  EXPECT_EQ(platform::amplified(number(30000, 2) + number(0xFFFF & -30000, 2), 1.6F),
            number(32767, 2) + number(0x8000, 2));
}

}  // namespace
