#include "Quillmonger/detection/ColorText.h"

#include <gtest/gtest.h>

#include <charconv>
#include <clocale>
#include <cstdlib>
#include <fstream>
#include <string>
#include <thread>

#include "tests/support/ChildProcess.h"
#include "tests/support/TemporaryFolder.h"

namespace quillmonger {

namespace {

constexpr double byteMaximum = 255;

RGBColor colorOf(unsigned number) {
  return {(number >> 16U) / byteMaximum, (number >> 8U & 0xFFU) / byteMaximum, (number & 0xFFU) / byteMaximum};
}

// Makes a locale with a decimal comma that of the C library for as long as it lives. Few machines have one, so it is
// compiled first.
class CommaLocale final {
 public:
  CommaLocale() {
    const auto source = m_folder.path() / "source";
    std::ofstream(source) << "LC_NUMERIC\ndecimal_point \",\"\nthousands_sep \".\"\ngrouping 3;3\nEND LC_NUMERIC\n";
    // Of the other parts of a locale it has none, which -c permits.
    testsupport::ChildProcess compiler({"localedef", "--quiet", "-c", "-i", source, m_folder.path() / "comma"});
    while (!compiler.isFinished())
      std::this_thread::yield();
    setenv("LOCPATH", m_folder.path().c_str(), 1);
    std::setlocale(LC_NUMERIC, "comma");
  }
  CommaLocale(const CommaLocale&) = delete;
  CommaLocale& operator=(const CommaLocale&) = delete;
  ~CommaLocale() {
    std::setlocale(LC_NUMERIC, m_before.c_str());
    unsetenv("LOCPATH");
  }

 private:
  const testsupport::TemporaryFolder m_folder;
  const std::string m_before = std::setlocale(LC_NUMERIC, nullptr);
};

TEST(ColorTextTest, ParseHexTakesThreeOrSixDigits) {
  EXPECT_EQ(parseHex("#123456"), colorOf(0x123456));
  EXPECT_EQ(parseHex("0x123456"), colorOf(0x123456));
  EXPECT_EQ(parseHex("123456"), colorOf(0x123456));
  EXPECT_EQ(parseHex("#aBc"), colorOf(0xAABBCC));
  for (const auto* const text : {"", " ", "#", "0x", "#12", "#1234", "#12345", "#1234567", "0X123", "##123"})
    EXPECT_EQ(parseHex(text), std::nullopt) << text;
}

TEST(ColorTextTest, ParseHexIgnoresSpacesAndTabsAtTheEndsOnly) {
  EXPECT_EQ(parseHex(" \t#123\t "), colorOf(0x112233));
  EXPECT_EQ(parseHex("# 123"), std::nullopt);
  EXPECT_EQ(parseHex("#123\n"), std::nullopt);
}

TEST(ColorTextTest, ParseHexRefusesWhatIsNoDigit) {
  for (const auto* const text : {"#ggg", "-1-1-1", "+1+1+1", "#ﬀ", "äöü", "12345 ", "1 2 3 ", "0x0x0x"})
    EXPECT_EQ(parseHex(text), std::nullopt) << text;
}

TEST(ColorTextTest, IntegersAreRoundedUp) {
  const RGBColor color(0.5, 0.001, 0.999);
  EXPECT_EQ(hexString(color), "#8001FF");
  EXPECT_EQ(rgbString(color), "rgb(128, 1, 255)");
}

TEST(ColorTextTest, HslHasOneDecimalUnlessItIsZero) {
  EXPECT_EQ(hslString({0, 1, 0.5}), "hsl(0, 100%, 50%)");
  EXPECT_EQ(hslString({1, 0.501, 0.25}), "hsl(360, 50.1%, 25%)");
  EXPECT_EQ(hslString({0.5, 0.9996, 0.0004}), "hsl(180, 100%, 0%)");
  EXPECT_EQ(hslString({1.0 / 7, 0.1, 0.05}), "hsl(51.4, 10%, 5%)");
}

TEST(ColorTextTest, HslHasADecimalPointInEveryLocale) {
  const CommaLocale locale;
  ASSERT_STREQ(std::localeconv()->decimal_point, ",");

  EXPECT_EQ(hslString({0.5, 0.505, 0.5}), "hsl(180, 50.5%, 50%)");
}

// The colors with one amount of red.
bool surviveText(unsigned red) {
  for (unsigned green = 0; green < 256; ++green) {
    const std::string start = "rgb(" + std::to_string(red) + ", " + std::to_string(green) + ", ";
    for (unsigned blue = 0; blue < 256; ++blue) {
      const RGBColor color = colorOf(red << 16U | green << 8U | blue);
      const std::string rgb = rgbString(color);
      unsigned readBlue = 256;
      if (rgb.starts_with(start)) std::from_chars(rgb.data() + start.size(), rgb.data() + rgb.size() - 1, readBlue);
      if (readBlue != blue || !rgb.ends_with(')') || parseHex(hexString(color)) != color) return false;
    }
  }
  return true;
}

class EveryColorTest : public testing::TestWithParam<unsigned> {};

// All colors of 24 bits, a quarter a case so that they share the processors.
TEST_P(EveryColorTest, SurvivesHexAndRgbText) {
  for (unsigned red = GetParam(); red < GetParam() + 64; ++red)
    ASSERT_TRUE(surviveText(red)) << red;
}
INSTANTIATE_TEST_SUITE_P(WithRedFrom, EveryColorTest, testing::Values(0, 64, 128, 192),
                         testing::PrintToStringParamName());

}  // namespace

}  // namespace quillmonger
