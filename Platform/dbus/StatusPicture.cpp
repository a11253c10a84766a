#include "Platform/dbus/StatusPicture.h"

#include <QPainter>
#include <QtEndian>

namespace platform {

namespace {

// 3:1 at the least against white and against panels up to #3b3b3b.
constexpr QRgb ink = qRgb(0x78, 0x87, 0xAD);
constexpr double pointsHigh = 22;
constexpr int sizes[] = {16, 22, 24, 32, 48};

NotifierPixmap pixmapOf(const QImage& picture) {
  const QImage image = picture.convertToFormat(QImage::Format_ARGB32);
  NotifierPixmap pixmap{image.width(), image.height(), QByteArray(image.sizeInBytes(), Qt::Uninitialized)};
  // Rows of four bytes a pixel have no padding.
  qToBigEndian<quint32>(image.constBits(), image.sizeInBytes() / 4, pixmap.pixels.data());
  return pixmap;
}

}  // namespace

void StatusPicture::setDrawing(const std::string& place) { m_renderer.load(QString::fromStdString(place)); }

QImage StatusPicture::image(int size) const {
  QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  if (!m_renderer.isValid()) return image;
  QPainter painter(&image);
  m_renderer.render(&painter, QRectF(0, -m_offset * size / pointsHigh, size, size));
  painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
  painter.fillRect(image.rect(), QColor(ink));
  return image;
}

QList<NotifierPixmap> StatusPicture::pixmaps() const {
  QList<NotifierPixmap> all;
  for (const int size : sizes)
    all.append(pixmapOf(image(size)));
  return all;
}

}  // namespace platform
