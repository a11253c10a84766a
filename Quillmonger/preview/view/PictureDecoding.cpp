#include "Quillmonger/preview/view/PictureDecoding.h"

#include <QBuffer>
#include <QImageReader>
#include <algorithm>
#include <array>
#include <cmath>

namespace quillmonger {

namespace {

constexpr double mostPixelsRead = 256e6;
constexpr double mostPixelsKept = 4e6;

bool isKnownFormat(const QByteArray& format) {
  constexpr std::array<const char*, 3> known{"png", "jpeg", "tiff"};
  return std::ranges::any_of(known, [&format](const char* name) { return format == name; });
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
  if (size.isEmpty() || double{1} * size.width() * size.height() > mostPixelsRead) return {};
  reader.setAutoTransform(true);
  // The size is that before the picture is turned.
  const bool isOnItsSide = reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
  const QSize kept = keptSize(isOnItsSide ? size.transposed() : size, width);
  reader.setScaledSize(isOnItsSide ? kept.transposed() : kept);
  return reader.read();
}

}  // namespace quillmonger
