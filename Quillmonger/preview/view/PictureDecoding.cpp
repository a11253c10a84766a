#include "Quillmonger/preview/view/PictureDecoding.h"

#include <QBuffer>
#include <QImageReader>
#include <algorithm>
#include <array>
#include <cmath>

#include "Quillmonger/history/LargeJpeg.h"

namespace quillmonger {

namespace {

constexpr double mostPixelsKept = 4e6;

bool isKnownFormat(const QByteArray& format) {
  constexpr std::array<const char*, 3> known{"png", "jpeg", "tiff"};
  return std::ranges::any_of(known, [&format](const char* name) { return format == name; });
}

// A JPEG picture is scaled as it is read. Others are whole in memory before they are scaled: as large as the readers
// let them be, which count no less than 32 bits for a pixel.
bool isTooLarge(const foundation::Data& picture, const QImageReader& reader, const QSize& size) {
  const double pixels = double{1} * size.width() * size.height();
  if (reader.format() == "jpeg") return isTooLargeJpeg(picture, pixels);
  if (QImageReader::allocationLimit() == 0) return false;  // none
  constexpr double bytesInMegabyte = 1 << 20;
  const int bytesPerPixel = std::max(4, QImage::toPixelFormat(reader.imageFormat()).bitsPerPixel() / 8);
  return pixels * bytesPerPixel > QImageReader::allocationLimit() * bytesInMegabyte;
}

// Never larger than the picture is.
QSize keptSize(const QSize& size, int width) {
  const double pixels = double{1} * size.width() * size.height();
  const double scale = std::min({1.0, width / static_cast<double>(size.width()), std::sqrt(mostPixelsKept / pixels)});
  return {std::max(1, qRound(size.width() * scale)), std::max(1, qRound(size.height() * scale))};
}

}  // namespace

QImage decodePicture(const foundation::Data& picture, int width) {
  const auto bytes = picture.bytes();
  if (!bytes) return {};
  QByteArray borrowed = QByteArray::fromRawData(bytes->data(), static_cast<qsizetype>(bytes->size()));
  QBuffer buffer(&borrowed);
  QImageReader reader(&buffer);
  if (!isKnownFormat(reader.format())) return {};
  const QSize size = reader.size();
  if (size.isEmpty() || isTooLarge(picture, reader, size)) return {};
  reader.setAutoTransform(true);
  // The size is that before the picture is turned.
  const bool isOnItsSide = reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
  const QSize kept = keptSize(isOnItsSide ? size.transposed() : size, width);
  reader.setScaledSize(isOnItsSide ? kept.transposed() : kept);
  return reader.read();
}

}  // namespace quillmonger
