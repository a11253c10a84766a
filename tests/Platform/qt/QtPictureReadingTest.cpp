#include "Platform/qt/QtPictureReading.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <algorithm>
#include <string>

namespace {

foundation::Data encoded(const QImage& image, const char* format) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, format);
  return foundation::Data(bytes.toStdString());
}

QImage filled(int width, int height, QColor color) {
  QImage image(width, height, QImage::Format_ARGB32);
  image.fill(color);
  return image;
}

TEST(QtPictureReading, ReadsTheSizeFromTheHead) {
  const platform::QtPictureReading reading;
  const auto whole = encoded(filled(300, 200, Qt::red), "PNG");

  EXPECT_EQ(reading.size(whole), (quillmonger::PictureSize{300, 200}));
  EXPECT_EQ(reading.size(foundation::Data(whole.part(0, 64))), (quillmonger::PictureSize{300, 200}));
}

TEST(QtPictureReading, TakesOtherBytesForNoPicture) {
  const platform::QtPictureReading reading;
  const auto whole = encoded(filled(30, 20, Qt::red), "PNG");

  for (const auto& bytes : {foundation::Data(), foundation::Data("text"), foundation::Data(std::string(9000, '\0'))}) {
    EXPECT_FALSE(reading.size(bytes));
    EXPECT_FALSE(reading.pixels(bytes, 20));
  }
  EXPECT_FALSE(reading.pixels(foundation::Data(whole.part(0, 40)), 20));
}

TEST(QtPictureReading, DrawsOverAllPixels) {
  const platform::QtPictureReading reading;

  for (const char* format : {"PNG", "JPG"}) {
    const auto pixels = reading.pixels(encoded(filled(3, 500, Qt::white), format), 20);

    ASSERT_TRUE(pixels);
    EXPECT_EQ(pixels->size(), 400U);
    EXPECT_TRUE(std::ranges::all_of(*pixels, [](std::uint32_t pixel) { return pixel == 0xFFFFFFFF; })) << format;
  }
}

TEST(QtPictureReading, DrawsAJpegPictureThatWouldNotFitIntoTheMemory) {
  const platform::QtPictureReading reading;
  const auto picture = encoded(filled(1000, 1000, Qt::white), "JPG");
  QImageReader::setAllocationLimit(1);

  const auto pixels = reading.pixels(picture, 20);

  QImageReader::setAllocationLimit(platform::QtPictureReading::allocationLimitInMegabytes);
  ASSERT_TRUE(pixels);
  EXPECT_TRUE(std::ranges::all_of(*pixels, [](std::uint32_t pixel) { return pixel == 0xFFFFFFFF; }));
}

TEST(QtPictureReading, PremultipliesWhatIsTransparent) {
  const platform::QtPictureReading reading;

  const auto pixels = reading.pixels(encoded(filled(10, 10, QColor(255, 255, 255, 0)), "PNG"), 20);

  ASSERT_TRUE(pixels);
  EXPECT_TRUE(std::ranges::all_of(*pixels, [](std::uint32_t pixel) { return pixel == 0; }));
}

TEST(QtPictureReading, RefusesAPictureThatWouldFillTheMemory) {
  const platform::QtPictureReading reading;
  auto bytes = encoded(filled(16, 16, Qt::red), "BMP").part(0, 1 << 20);
  bytes.replace(18, 8, std::string("\xFF\xFF\x00\x00\xFF\xFF\x00\x00", 8));  // 65,535 by 65,535

  EXPECT_FALSE(reading.pixels(foundation::Data(bytes), 20));
}

TEST(QtPictureReading, RefusesAProgressivePictureThatWouldFillTheMemory) {
  const platform::QtPictureReading reading;
  auto bytes = *encoded(filled(16, 16, Qt::red), "JPG").bytes();
  const auto frame = bytes.find("\xFF\xC0");
  ASSERT_NE(frame, std::string::npos);
  bytes[frame + 1] = '\xC2';
  bytes.replace(frame + 5, 4, "\x3E\x80\x3E\x80");  // 16,000 by 16,000
  const auto scan = bytes.find("\xFF\xDA");
  ASSERT_NE(scan, std::string::npos);
  bytes[scan + 12] = '\0';  // the first pass, which is what a progressive picture begins with

  EXPECT_FALSE(reading.pixels(foundation::Data(bytes), 20));
}

}  // namespace
