#include "Quillmonger/preview/view/PictureDecoding.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QByteArray>
#include <QImageReader>
#include <QStringList>
#include <string>

namespace {

using quillmonger::decodePicture;

foundation::Data encoded(const QSize& size, const char* format, QImage::Format pixels = QImage::Format_RGB32) {
  QImage image(size, pixels);
  image.fill(QColor(10, 200, 30));
  QByteArray bytes;
  QBuffer buffer(&bytes);
  image.save(&buffer, format);
  return foundation::Data(bytes.toStdString());
}

// A PNG picture's head that claims a size, with nothing behind it.
foundation::Data claiming(std::uint32_t width, std::uint32_t height) {
  std::string bytes = *encoded({1, 1}, "PNG").bytes();
  for (int byte = 0; byte < 4; ++byte) {
    bytes[16 + static_cast<std::size_t>(byte)] = static_cast<char>(width >> (24 - 8 * byte));
    bytes[20 + static_cast<std::size_t>(byte)] = static_cast<char>(height >> (24 - 8 * byte));
  }
  return foundation::Data(bytes);
}

TEST(PictureDecoding, ScalesAPictureDownToTheWidth) {
  const QImage image = decodePicture(encoded({1000, 500}, "PNG"), 332);

  EXPECT_EQ(image.size(), QSize(332, 166));
  EXPECT_EQ(image.pixelColor(100, 100), QColor(10, 200, 30));
}

TEST(PictureDecoding, ReadsJpegToo) {
  EXPECT_EQ(decodePicture(encoded({800, 800}, "JPG"), 200).size(), QSize(200, 200));
}

TEST(PictureDecoding, NeverEnlarges) { EXPECT_EQ(decodePicture(encoded({16, 16}, "PNG"), 332).size(), QSize(16, 16)); }

TEST(PictureDecoding, KeepsOnlySoManyPixelsOfAStrip) {
  const QImage image = decodePicture(encoded({332, 30'000}, "PNG"), 332);

  EXPECT_LE(image.sizeInBytes(), 17'000'000);
  EXPECT_FALSE(image.isNull());
}

TEST(PictureDecoding, RefusesWhatIsNoPicture) {
  EXPECT_TRUE(decodePicture(foundation::Data("no picture"), 332).isNull());
  EXPECT_TRUE(decodePicture(foundation::Data(), 332).isNull());
}

TEST(PictureDecoding, RefusesOtherFormatsUnderTheNameOfAPicture) {
  const foundation::Data drawing("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"10\" height=\"10\"></svg>");

  EXPECT_TRUE(decodePicture(drawing, 332).isNull());
  EXPECT_TRUE(decodePicture(encoded({10, 10}, "BMP"), 332).isNull());
}

TEST(PictureDecoding, RefusesAPictureThatClaimsAGiantSize) {
  EXPECT_TRUE(decodePicture(claiming(60'000, 60'000), 332).isNull());
  EXPECT_TRUE(decodePicture(claiming(2'000'000'000, 1), 332).isNull());
}

class WithLittleMemory : public testing::Test {
 protected:
  WithLittleMemory() { QImageReader::setAllocationLimit(1); }
  ~WithLittleMemory() override {
    qInstallMessageHandler(m_handlerBefore);
    QImageReader::setAllocationLimit(m_limitBefore);
  }

  static inline QStringList complaints;

 private:
  int m_limitBefore = QImageReader::allocationLimit();
  QtMessageHandler m_handlerBefore = qInstallMessageHandler(
      [](QtMsgType, const QMessageLogContext&, const QString& message) { complaints.append(message); });
};

TEST_F(WithLittleMemory, ReadsWhatJustFits) {
  EXPECT_EQ(decodePicture(encoded({512, 512}, "PNG"), 100).size(), QSize(100, 100));
}

TEST_F(WithLittleMemory, RefusesWhatWouldNotFitBeforeItsReaderDoes) {
  complaints.clear();

  EXPECT_TRUE(decodePicture(encoded({512, 513}, "PNG"), 100).isNull());
  EXPECT_TRUE(decodePicture(encoded({512, 513}, "PNG", QImage::Format_Grayscale8), 100).isNull());
  EXPECT_TRUE(decodePicture(encoded({362, 363}, "PNG", QImage::Format_RGBA64), 100).isNull());
  EXPECT_TRUE(decodePicture(encoded({512, 513}, "TIFF"), 100).isNull());

  EXPECT_EQ(complaints, QStringList());
}

TEST_F(WithLittleMemory, ReadsALargerJpegPictureScaledDown) {
  EXPECT_EQ(decodePicture(encoded({2000, 2000}, "JPG"), 100).size(), QSize(100, 100));
}

TEST(PictureDecoding, RefusesAProgressivePictureThatWouldFillTheMemory) {
  std::string bytes = *encoded({16, 16}, "JPG").bytes();
  const auto frame = bytes.find("\xFF\xC0");
  ASSERT_NE(frame, std::string::npos);
  bytes[frame + 1] = '\xC2';
  bytes.replace(frame + 5, 4, "\x3E\x80\x3E\x80");  // 16,000 by 16,000
  const auto scan = bytes.find("\xFF\xDA");
  ASSERT_NE(scan, std::string::npos);
  bytes[scan + 12] = '\0';  // the first pass, which is what a progressive picture begins with

  EXPECT_TRUE(decodePicture(foundation::Data(bytes), 332).isNull());
}

TEST(PictureDecoding, RefusesACutOffPicture) {
  const std::string bytes = *encoded({1000, 1000}, "PNG").bytes();

  EXPECT_TRUE(decodePicture(foundation::Data(bytes.substr(0, 40)), 332).isNull());
}

}  // namespace
