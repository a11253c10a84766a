#include "Platform/dbus/StatusPicture.h"

#include <gtest/gtest.h>

#include <QFile>
#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "tests/support/TemporaryFolder.h"

namespace {

// A drawing whose ink is the upper half.
class StatusPicture : public testing::Test {
 protected:
  StatusPicture() {
    QFile file(QString::fromStdString(m_place));
    if (!file.open(QIODevice::WriteOnly)) throw std::runtime_error("no place for the drawing");
    file.write(R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 22 22"><path d="M0 0h22v11H0z"/></svg>)");
  }

  testsupport::TemporaryFolder m_folder;
  std::string m_place = m_folder.path() / "drawing.svg";
  platform::StatusPicture m_picture;
};

double luminance(QRgb color) {
  const auto linear = [](int channel) {
    const double value = channel / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color)) + 0.0722 * linear(qBlue(color));
}

double contrast(QRgb one, QRgb other) {
  const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
  return (lighter + 0.05) / (darker + 0.05);
}

TEST_F(StatusPicture, ComesInTheSizesOfPanels) {
  m_picture.setDrawing(m_place);

  std::vector<int> sizes;
  for (const auto& pixmap : m_picture.pixmaps()) {
    EXPECT_EQ(pixmap.width, pixmap.height);
    EXPECT_EQ(pixmap.pixels.size(), 4 * pixmap.width * pixmap.height);
    sizes.push_back(pixmap.width);
  }

  EXPECT_EQ(sizes, (std::vector{16, 22, 24, 32, 48}));
}

TEST_F(StatusPicture, IsOfOneColourThatContrastsWithDarkAndLightPanels) {
  m_picture.setDrawing(m_place);

  const QRgb ink = m_picture.image(22).pixel(11, 5);

  EXPECT_EQ(qAlpha(ink), 255);
  for (const QRgb panel :
       {qRgb(255, 255, 255), qRgb(239, 240, 241), qRgb(0, 0, 0), qRgb(0x2A, 0x2E, 0x32), qRgb(0x3B, 0x3B, 0x3B)})
    EXPECT_GE(contrast(ink, panel), 3.0) << std::hex << panel;
}

TEST_F(StatusPicture, HasAlphaFirstAndColoursFromTheMostSignificantByteOn) {
  m_picture.setDrawing(m_place);

  const auto pixmap = m_picture.pixmaps().front();
  const auto expected = m_picture.image(16).pixel(8, 2);

  const auto* pixel = reinterpret_cast<const uchar*>(pixmap.pixels.constData()) + 4 * (16 * 2 + 8);
  EXPECT_EQ(qRgba(pixel[1], pixel[2], pixel[3], pixel[0]), expected);
}

TEST_F(StatusPicture, RisesByItsOffset) {
  m_picture.setDrawing(m_place);
  EXPECT_EQ(qAlpha(m_picture.image(22).pixel(11, 10)), 255);

  m_picture.setOffset(5);

  EXPECT_EQ(qAlpha(m_picture.image(22).pixel(11, 5)), 255);
  EXPECT_EQ(qAlpha(m_picture.image(22).pixel(11, 10)), 0);
  EXPECT_EQ(qAlpha(m_picture.image(44).pixel(22, 11)), 255) << "a point has two pixels here";
  EXPECT_EQ(qAlpha(m_picture.image(44).pixel(22, 13)), 0);
}

TEST_F(StatusPicture, IsOutOfSightThirtyPointsAbove) {
  m_picture.setDrawing(m_place);

  m_picture.setOffset(30);

  EXPECT_TRUE(m_picture.image(22).allGray());
  EXPECT_EQ(qAlpha(m_picture.image(22).pixel(11, 0)), 0);
}

TEST_F(StatusPicture, IsEmptyWithoutADrawing) {
  EXPECT_EQ(qAlpha(m_picture.image(22).pixel(11, 5)), 0);
  EXPECT_EQ(m_picture.pixmaps().size(), 5);
}

}  // namespace
