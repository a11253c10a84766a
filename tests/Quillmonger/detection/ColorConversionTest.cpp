#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "Quillmonger/detection/Color.h"
#include "Quillmonger/detection/ColorText.h"
#include "tests/Quillmonger/detection/RandomText.h"

namespace quillmonger {

namespace {

constexpr double byteMaximum = 255;

void expectNear(const RGBColor& color, const RGBColor& expected) {
  constexpr double tolerance = 1e-12;
  EXPECT_NEAR(color.red(), expected.red(), tolerance);
  EXPECT_NEAR(color.green(), expected.green(), tolerance);
  EXPECT_NEAR(color.blue(), expected.blue(), tolerance);
}

TEST(ColorConversionTest, TheCornersOfTheCircle) {
  expectNear(rgbFromHSL({0, 1, 0.5}), {1, 0, 0});
  expectNear(rgbFromHSL({1.0 / 6, 1, 0.5}), {1, 1, 0});
  expectNear(rgbFromHSL({2.0 / 6, 1, 0.5}), {0, 1, 0});
  expectNear(rgbFromHSL({3.0 / 6, 1, 0.5}), {0, 1, 1});
  expectNear(rgbFromHSL({4.0 / 6, 1, 0.5}), {0, 0, 1});
  expectNear(rgbFromHSL({5.0 / 6, 1, 0.5}), {1, 0, 1});
  EXPECT_EQ(rgbFromHSL({1, 1, 0.5}), RGBColor(1, 0, 0));
}

TEST(ColorConversionTest, WithoutSaturationEachComponentIsTheLightness) {
  EXPECT_EQ(rgbFromHSL({0.3, 0, 0.7}), RGBColor(0.7, 0.7, 0.7));
}

TEST(ColorConversionTest, AGreyHasNeitherHueNorSaturation) {
  EXPECT_EQ(hslFromRGB({0.25, 0.25, 0.25}), HSLColor(0, 0, 0.25));
  EXPECT_EQ(hslFromRGB({0, 0, 0}), HSLColor(0, 0, 0));
  EXPECT_EQ(hslFromRGB({1, 1, 1}), HSLColor(0, 0, 1));
}

TEST(ColorConversionTest, RedWinsATieWithGreenAndGreenATieWithBlue) {
  EXPECT_EQ(hslFromRGB({1, 1, 0}).hue() * 360, 60);
  EXPECT_EQ(hslFromRGB({0, 1, 1}).hue() * 360, 180);
  EXPECT_EQ(hslFromRGB({1, 0, 1}).hue() * 360, 300);
}

TEST(ColorConversionTest, ANegativeHueGoesOnceAroundTheCircle) {
  EXPECT_EQ(hslFromRGB({1, 0, 0.5}), HSLColor(330.0 / 360, 1, 0.5));
}

TEST(ColorConversionTest, HslThereAndBackGivesTheSameBytes) {
  constexpr int step = 5;  // every fifth value of each component, with 0 and 255
  for (int red = 0; red <= 255; red += step) {
    for (int green = 0; green <= 255; green += step) {
      for (int blue = 0; blue <= 255; blue += step) {
        const RGBColor color(red / byteMaximum, green / byteMaximum, blue / byteMaximum);
        const RGBColor back = rgbFromHSL(hslFromRGB(color));
        ASSERT_EQ(std::lround(back.red() * byteMaximum), red);
        ASSERT_EQ(std::lround(back.green() * byteMaximum), green);
        ASSERT_EQ(std::lround(back.blue() * byteMaximum), blue);
      }
    }
  }
}

// A component beyond 1, be it by the last bit, stops the process.
TEST(ColorConversionTest, EveryWholeDegreeAndPercentageStaysInRange) {
  for (int hue = 0; hue <= 360; ++hue) {
    for (int saturation = 0; saturation <= 100; ++saturation) {
      for (int lightness = 0; lightness <= 100; ++lightness)
        static_cast<void>(rgbFromHSL({hue / 360.0, saturation / 100.0, lightness / 100.0}));
    }
  }
}

TEST(ColorConversionTest, EveryColorHasAHueSaturationAndLightnessInRange) {
  RandomText random(1);
  for (int i = 0; i < 300'000; ++i)
    static_cast<void>(hslFromRGB({random.fraction(), random.fraction(), random.fraction()}));
}

TEST(ColorTest, KeepsItsComponentsAndIsOpaque) {
  const Color color = makeColor(ColorSpace::genericRGB, {0.1, 0.2, 0.3});

  EXPECT_EQ(color.alpha, 1);
  EXPECT_EQ(colorComponents(color, ColorSpace::genericRGB), RGBColor(0.1, 0.2, 0.3));
}

TEST(ColorTest, ComponentsIgnoreTheOpacity) {
  const Color clear{ColorSpace::genericRGB, {0.1, 0.2, 0.3}, 0};
  EXPECT_EQ(colorComponents(clear, ColorSpace::genericRGB), RGBColor(0.1, 0.2, 0.3));
}

TEST(ColorDeathTest, ASpaceWithoutRedGreenAndBlueStops) {
  const Color color = makeColor(ColorSpace::genericRGB, {0, 0, 0});
  EXPECT_DEATH((void)colorComponents(color, ColorSpace::genericGray), "Color space must have RGB model\\.");
  EXPECT_DEATH((void)makeColor(ColorSpace::genericGray, {0, 0, 0}), "Color space must have RGB model\\.");
}

TEST(ColorDeathTest, AColorThatCannotBeConvertedStops) {
  const Color gray{ColorSpace::genericGray, {0.5, 0, 0}, 1};
  EXPECT_DEATH(
      (void)colorComponents(gray, ColorSpace::genericRGB),
      "Failed to convert a color in the generic gray color space to RGBColor using the generic RGB color space\\.");
}

TEST(ColorDeathTest, AComponentOutOfRangeStops) {
  const double beyond = std::nextafter(1, 2);
  const double notANumber = std::numeric_limits<double>::quiet_NaN();
  EXPECT_DEATH(RGBColor(beyond, 0, 0), "RGB component");
  EXPECT_DEATH(RGBColor(0, -0.1, 0), "RGB component");
  EXPECT_DEATH(RGBColor(0, 0, notANumber), "RGB component");
  EXPECT_DEATH(HSLColor(beyond, 0, 0), "HSL component");
  EXPECT_DEATH(HSLColor(0, -0.1, 0), "HSL component");
  EXPECT_DEATH(HSLColor(0, 0, notANumber), "HSL component");
  EXPECT_DEATH((void)colorComponents({ColorSpace::genericRGB, {0, 2, 0}, 1}, ColorSpace::genericRGB), "RGB component");
}

}  // namespace

}  // namespace quillmonger
