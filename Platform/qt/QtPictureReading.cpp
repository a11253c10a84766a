#include "Platform/qt/QtPictureReading.h"

#include <QImage>
#include <QImageReader>
#include <cstring>

#include "Platform/qt/DataDevice.h"
#include "Quillmonger/history/LargeJpeg.h"

namespace platform {

QtPictureReading::QtPictureReading() { QImageReader::setAllocationLimit(allocationLimitInMegabytes); }

std::optional<quillmonger::PictureSize> QtPictureReading::size(const foundation::Data& picture) const {
  DataDevice device(picture);
  QImageReader reader(&device);
  QSize size = reader.size();
  if (reader.transformation().testFlag(QImageIOHandler::TransformationRotate90)) size.transpose();
  if (size.isEmpty()) return std::nullopt;
  return quillmonger::PictureSize{static_cast<double>(size.width()), static_cast<double>(size.height())};
}

std::optional<std::vector<std::uint32_t>> QtPictureReading::pixels(const foundation::Data& picture, int edge) const {
  DataDevice device(picture);
  QImageReader reader(&device);
  reader.setAutoTransform(true);
  // Not whole in memory then, unlike other kinds: its reader's limit is for the result alone.
  if (reader.format() == "jpeg") {
    const QSize size = reader.size();
    if (quillmonger::isTooLargeJpeg(picture, double{1} * size.width() * size.height())) return std::nullopt;
    reader.setScaledSize({edge, edge});
  }
  const QImage whole = reader.read();
  if (whole.isNull()) return std::nullopt;
  const QImage image = whole.scaled(edge, edge, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                           .convertToFormat(QImage::Format_ARGB32_Premultiplied);
  const auto width = static_cast<std::size_t>(edge);
  std::vector<std::uint32_t> pixels(width * width);
  for (std::size_t row = 0; row < width; ++row) {
    std::memcpy(&pixels[row * width], image.constScanLine(static_cast<int>(row)), width * sizeof(std::uint32_t));
  }
  return pixels;
}

}  // namespace platform
