#include "Quillmonger/detection/ColorText.h"

#include <gtest/gtest.h>

#include <charconv>
#include <clocale>
#include <string>

namespace quillmonger {

namespace {

constexpr double byteMaximum = 255;

RGBColor colorOf(unsigned number) {
  return {(number >> 16U) / byteMaximum, (number >> 8U & 0xFFU) / byteMaximum, (number & 0xFFU) / byteMaximum};
}

unsigned hexNumber(std::string_view digits) {
  unsigned number = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), number, 16);
  return number;
}

// Of "rgb(1, 2, 3)".
unsigned rgbNumber(const std::string& text) {
  unsigned number = 0;
  const char* at = text.data() + 4;
  for (int i = 0; i < 3; ++i) {
    unsigned component = 0;
    at = std::from_chars(at, text.data() + text.size(), component).ptr + 2;
    number = number << 8U | component;
  }
  return number;
}

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

TEST(ColorTextTest, ParseHexRefusesWhatIsNotAscii) {
  EXPECT_EQ(parseHex("#ﬀ"), std::nullopt);
  EXPECT_EQ(parseHex("äöü"), std::nullopt);
}

TEST(ColorTextDeathTest, ParseHexStopsAtANegativeNumber) { EXPECT_DEATH((void)parseHex("-1-1-1"), "RGB component"); }

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
  const std::string locale = std::setlocale(LC_NUMERIC, nullptr);
  std::setlocale(LC_NUMERIC, "de_DE.UTF-8");
  const std::string text = hslString({0.5, 0.505, 0.5});
  std::setlocale(LC_NUMERIC, locale.c_str());

  EXPECT_EQ(text, "hsl(180, 50.5%, 50%)");
}

TEST(ColorTextTest, EveryColorOf24BitsSurvivesHexAndRgbText) {
  constexpr unsigned end = 1U << 24U;
  for (unsigned number = 0; number < end; ++number) {
    const RGBColor color = colorOf(number);
    const std::string hex = hexString(color);
    const std::string rgb = rgbString(color);
    const auto parsed = parseHex(hex);
    if (hexNumber(std::string_view(hex).substr(1)) == number && rgbNumber(rgb) == number && parsed == color) continue;
    FAIL() << hex << ' ' << rgb;
  }
}

}  // namespace

}  // namespace quillmonger
