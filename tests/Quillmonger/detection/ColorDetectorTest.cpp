#include "Quillmonger/detection/ColorDetector.h"

#include <gtest/gtest.h>
#include <unicode/regex.h>

#include <optional>
#include <string>

#include "Quillmonger/detection/ColorText.h"
#include "tests/Quillmonger/detection/LocaleFixture.h"
#include "tests/Quillmonger/detection/RandomText.h"

namespace quillmonger {

namespace {

class ColorLocaleTest : public LocaleFixture {};

const ColorDetector& detector() {
  static const ColorDetector theDetector;
  return theDetector;
}

std::optional<RGBColor> detect(std::string_view text) {
  const auto result = detector().detect(text);
  if (!result) return std::nullopt;
  const auto& color = dynamic_cast<const ColorDetector::ColorResult&>(*result).color;
  EXPECT_EQ(color.alpha, 1);
  return colorComponents(color, ColorSpace::genericRGB);
}

// As the color's panel shows it.
std::string hexOf(std::string_view text) {
  const auto color = detect(text);
  return color ? hexString(*color) : "nothing";
}

TEST(ColorDetectorTest, HexHasThreeOrSixDigitsAfterANumberSignOrAZeroAndASmallX) {
  EXPECT_EQ(hexOf("#fff"), "#FFFFFF");
  EXPECT_EQ(hexOf("#FFFFFF"), "#FFFFFF");
  EXPECT_EQ(hexOf("0xabc"), "#AABBCC");
  EXPECT_EQ(hexOf("0xABCDEF"), "#ABCDEF");
  EXPECT_EQ(hexOf("#AbC"), "#AABBCC");
  for (const auto* const text : {"#ffff", "#ff", "#", "#fffffff", "#ggg", "ff0000", "0Xabc", "0XABC", "0Xabcdef",
                                 " #fff", "#fff ", "0x", "#fff\n\n"}) {
    EXPECT_EQ(hexOf(text), "nothing") << text;
  }
}

TEST(ColorDetectorTest, RgbHasThreeIntegersUpTo255) {
  EXPECT_EQ(hexOf("rgb(0,0,0)"), "#000000");
  EXPECT_EQ(hexOf("rgb(255, 255, 255)"), "#FFFFFF");
  EXPECT_EQ(hexOf("RGB(1,2,3)"), "#010203");
  EXPECT_EQ(hexOf("rgb(0001,\t\n2,  3)"), "#010203");
  for (const auto* const text : {"rgb(256,0,0)", "rgb(0,0,1000)", "rgb(1 ,2,3)", "rgb(-1,0,0)", "rgb(1,2)", "rgb(1,2,3",
                                 "rgb( 1,2,3)", "rgb (1,2,3)", "rgba(1,2,3)", "rgb(9223372036854775807,0,0)"}) {
    EXPECT_EQ(hexOf(text), "nothing") << text;
  }
}

TEST(ColorDetectorTest, HslHasDegreesUpTo360AndTwoPercentages) {
  EXPECT_EQ(detect("hsl(360, 100%, 50%)"), detect("hsl(0, 100%, 50%)"));
  EXPECT_EQ(hexOf("hsl(360, 100%, 50%)"), "#FF0000");
  EXPECT_NE(hexOf("hsl(120,50.5%,25%)"), "nothing");
  EXPECT_NE(hexOf("HSL(0.5, 0%, 100.0%)"), "nothing");
  for (const auto* const text : {"hsl(361, 0%, 0%)", "hsl(360.1, 0%, 0%)", "hsl(0, 101%, 0%)", "hsl(0, 0%, 100.1%)",
                                 "hsl(120,50%,25)", "hsl(-1, 0%, 0%)", "hsl(1., 0%, 0%)", "hsl(1,0 %,0%)"}) {
    EXPECT_EQ(hexOf(text), "nothing") << text;
  }
}

TEST(ColorDetectorTest, HslWithoutSaturationIsItsLightness) {
  EXPECT_EQ(detect("hsl(0, 0%, 100%)"), RGBColor(1, 1, 1));
  EXPECT_EQ(detect("hsl(77, 0%, 50%)"), RGBColor(0.5, 0.5, 0.5));
}

TEST(ColorDetectorTest, ColorsReadAsTheirPanelShowsThem) {
  EXPECT_EQ(rgbString(*detect("#808080")), "rgb(128, 128, 128)");
  EXPECT_EQ(hslString(hslFromRGB(*detect("#808080"))), "hsl(0, 0%, 50.2%)");
  EXPECT_EQ(rgbString(*detect("hsl(0, 100%, 25%)")), "rgb(128, 0, 0)");
  EXPECT_EQ(hslString(hslFromRGB(*detect("#ff0000"))), "hsl(0, 100%, 50%)");
}

TEST(ColorDetectorTest, OneLineEndMayFollow) {
  for (const std::string end : {"\n", "\r", "\r\n", "\u0085", "\u2028", "\u2029"}) {
    EXPECT_EQ(hexOf("#fff" + end), "#FFFFFF");
    EXPECT_EQ(hexOf("0xffffff" + end), "#FFFFFF");
    EXPECT_EQ(hexOf("rgb(1,2,3)" + end), "#010203");
    EXPECT_EQ(hexOf("hsl(0,0%,100%)" + end), "#FFFFFF");
  }
}

TEST(ColorDetectorTest, ALongSCountsAsAnSAsCaseIsIgnored) { EXPECT_EQ(hexOf("h\u017Fl(0,0%,100%)"), "#FFFFFF"); }

TEST_F(ColorLocaleTest, ANotationDoesNotDependOnTheLocale) {
  for (const auto* const locale : {"en_US", "de_DE", "tr_TR", "el_GR", "ar_EG", "ja_JP"}) {
    setLocale(locale);
    const ColorDetector fresh;
    for (const auto* const text : {"#AbC", "0xABCDEF", "RGB(1, 2, 3)", "HSL(120, 50.5%, 25%)"})
      EXPECT_NE(fresh.detect(text), nullptr) << locale << ' ' << text;
    for (const auto* const text : {"0XABC", "#ffff", "rgb(256,0,0)", "hsl(120, 50,5%, 25%)", "hsl(361, 0%, 0%)"})
      EXPECT_EQ(fresh.detect(text), nullptr) << locale << ' ' << text;
  }
}

TEST(ColorDetectorTest, HslInDigitsOfAnotherScriptIsNothing) { EXPECT_EQ(hexOf("hsl(\u0661,0%,100%)"), "nothing"); }

TEST(ColorDetectorTest, HslInEndlessDigitsIsNothing) {
  EXPECT_EQ(hexOf("hsl(" + std::string(400, '9') + ",0%,100%)"), "nothing");
}

TEST(ColorDetectorTest, ALongTextThatLooksLikeAColorAtBothEndsIsNothing) {
  EXPECT_EQ(hexOf("rgb(" + std::string(1 << 20, '1') + ",1,1)"), "nothing");
  EXPECT_EQ(hexOf("rgb(1," + std::string(1 << 20, ' ') + "x,1)"), "nothing");
  EXPECT_EQ(hexOf("hsl(" + std::string(1 << 20, '1') + "%)"), "nothing");
}

TEST(ColorDetectorDeathTest, StopsAtAComponentOfRgbThatIsNoIntegerOf64Bits) {
  EXPECT_DEATH(detect("rgb(9223372036854775808,0,0)"), "component of rgb");
  EXPECT_DEATH(detect("rgb(0,0,99999999999999999999)"), "component of rgb");
  EXPECT_DEATH(detect("rgb(300,0,99999999999999999999)"), "component of rgb");
  EXPECT_DEATH(detect("rgb(\u0661,0,0)"), "component of rgb");
}

TEST(ColorDetectorTest, ReadsBackWhatItsPanelShows) {
  for (unsigned number = 0; number < 1U << 24U; number += 997) {
    const RGBColor color((number >> 16U) / 255.0, (number >> 8U & 0xFFU) / 255.0, (number & 0xFFU) / 255.0);
    ASSERT_EQ(detect(hexString(color)), color) << number;
    ASSERT_EQ(detect(rgbString(color)), color) << number;
    ASSERT_TRUE(detect(hslString(hslFromRGB(color)))) << number;
  }
}

// Whether `expression` matches and its groups, if it has three, are numbers up to `maxima`.
bool isMatched(const char16_t* expression, const std::string& text, const std::vector<double>& maxima) {
  const auto units = icu::UnicodeString::fromUTF8(text);
  UErrorCode status = U_ZERO_ERROR;
  icu::RegexMatcher matcher(expression, units, UREGEX_CASE_INSENSITIVE, status);
  if (matcher.find() == 0) return false;
  for (std::size_t i = 0; i < maxima.size(); ++i) {
    std::string group;
    matcher.group(static_cast<std::int32_t>(i) + 1, status).toUTF8String(group);
    if (std::stod(group) > maxima[i]) return false;
  }
  return true;
}

// What is a color by the expressions alone, without a look at the text before.
bool isColor(const std::string& text) {
  return (isMatched(uR"(^(#|0x)(?:[0-9a-fA-F]{3}){1,2}$)", text, {}) && text.find('X') == std::string::npos) ||
         isMatched(uR"(^rgb\((\d+),\s*(\d+),\s*(\d+)\)$)", text, {255, 255, 255}) ||
         isMatched(uR"(^hsl\((\d+(?:\.\d+)?),\s*(\d+(?:\.\d+)?)%,\s*(\d+(?:\.\d+)?)%\)$)", text, {360, 100, 100});
}

TEST(ColorDetectorTest, FindsWhatTheExpressionsMatchWhateverTheTextLooksLike) {
  const std::vector<std::string> samples{"#fff", "0xABCDEF", "rgb(1, 22, 33)", "hsl(12.5, 50%, 7%)", "#123456\n"};
  const std::vector<std::string> pieces{" ",      "\n",     "\r\n", "\u2028", "0",  "f",      "X",    "x", "#", "(",
                                        ")",      ",",      ".",    "%",      "r",  "R",      "H",    "s", "S", "L",
                                        "\u017F", "\u212A", "é",    "\u0301", "\t", "\u0085", "🙂", "-"};
  RandomText random(1);
  int found = 0;
  for (int i = 0; i < 6000; ++i) {
    std::string text = random.oneOf(samples);
    for (std::size_t changes = random.below(3); changes > 0; --changes)
      text = random.mutated(text, pieces);
    const bool isFound = detect(text).has_value();
    ASSERT_EQ(isFound, isColor(text)) << text;
    found += isFound ? 1 : 0;
  }
  EXPECT_GT(found, 1000);
}

}  // namespace

}  // namespace quillmonger
