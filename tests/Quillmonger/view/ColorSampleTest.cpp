#include "Quillmonger/history/view/ColorSample.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

namespace {

using quillmonger::adjusted;
using quillmonger::ColorSample;

QImage drawn(const QColor& color, bool withGradient, const QSize& size = {60, 40}) {
  ColorSample sample;
  sample.setSize(size);
  sample.setColor(color);
  sample.setOutline(Qt::black);
  sample.setWithGradient(withGradient);
  QImage image(size, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  sample.paint(&painter);
  return image;
}

TEST(AdjustedColor, AddsToEachPartUpToOneAndKeepsTheOpacity) {
  const QColor color = adjusted(QColor::fromRgbF(0.5F, 0.95F, 0.25F, 0.5F), 0.125F);

  EXPECT_NEAR(color.redF(), 0.625F, 0.001F);
  EXPECT_EQ(color.greenF(), 1.0F);
  EXPECT_NEAR(color.blueF(), 0.375F, 0.001F);
  EXPECT_NEAR(color.alphaF(), 0.5F, 0.001F);
}

TEST(AdjustedColor, HasNoLowerBound) { EXPECT_NEAR(adjusted(QColor(Qt::black), -0.05F).redF(), -0.05F, 0.001F); }

TEST(AdjustedColor, LeavesWhatIsNoColorAlone) { EXPECT_FALSE(adjusted(QColor(), 0.1F).isValid()); }

TEST(ColorSample, IsOfOneColorWithoutGradient) {
  const QImage image = drawn(QColor(100, 120, 140), false);

  EXPECT_EQ(image.pixelColor(30, 20), QColor(100, 120, 140));
  EXPECT_EQ(image.pixelColor(8, 20), QColor(100, 120, 140));
}

TEST(ColorSample, GoesFromADarkerMiddleToALighterEdgeWithGradient) {
  const QImage image = drawn(QColor(100, 120, 140), true);

  EXPECT_NEAR(image.pixelColor(30, 20).red(), 100 - 13, 2);
  EXPECT_NEAR(image.pixelColor(30 + 14, 20).red(), 100, 2);
  EXPECT_NEAR(image.pixelColor(56, 20).red(), 100 + 25, 3);
}

TEST(ColorSample, KeepsAPaddingOutsideOfItsOutline) {
  const QImage image = drawn(Qt::red, false);

  EXPECT_EQ(image.pixelColor(0, 20).alpha(), 0);
  EXPECT_EQ(image.pixelColor(1, 20), QColor(Qt::black));
  EXPECT_EQ(image.pixelColor(30, 38), QColor(Qt::black));
  EXPECT_EQ(image.pixelColor(30, 39).alpha(), 0);
  EXPECT_EQ(image.pixelColor(2, 2).alpha(), 0);
}

TEST(ColorSample, PaintsABlackSampleThoughItsMiddleWouldBeDarkerThanBlack) {
  EXPECT_EQ(drawn(Qt::black, true).pixelColor(30, 20), QColor(Qt::black));
}

}  // namespace
