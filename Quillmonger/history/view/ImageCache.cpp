#include "Quillmonger/history/view/ImageCache.h"

#include <QIcon>
#include <QImageReader>
#include <QPainter>
#include <QSvgRenderer>
#include <QUrl>
#include <algorithm>
#include <utility>

namespace quillmonger {

namespace {

constexpr int usualEdge = 32;
constexpr int largestEdge = 512;
// A picture file of another program is read within this bound only.
constexpr qint64 mostPixels = qint64{4096} * 4096;

QImage pictureFile(const QString& path, int edge) {
  QImageReader reader(path);
  const QSize size = reader.size();
  if (size.isEmpty() || qint64{size.width()} * size.height() > mostPixels) return {};
  reader.setScaledSize(size.scaled(edge, edge, Qt::KeepAspectRatio));
  return reader.read();
}

QImage generalIcon(int edge) {
  QImage image(edge, edge, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  QSvgRenderer(QStringLiteral(":/qt-project.org/imports/Quillmonger/Resources/general-app.svg")).render(&painter);
  return image;
}

}  // namespace

ImageCache::ImageCache(IconNaming iconNaming)
    : QQuickImageProvider(QQuickImageProvider::Image), m_iconNaming(std::move(iconNaming)) {}

QImage ImageCache::requestImage(const QString& id, QSize* size, const QSize& requestedSize) {
  const int edge = requestedSize.isEmpty() ? usualEdge : std::min(requestedSize.height(), largestEdge);
  const QString key = id + u'\n' + QString::number(edge);
  auto found = m_icons.constFind(key);
  if (found == m_icons.constEnd()) found = m_icons.insert(key, icon(QUrl::fromPercentEncoding(id.toUtf8()), edge));
  *size = found->size();
  return *found;
}

QImage ImageCache::icon(const QString& path, int edge) const {
  const QString name = QString::fromStdString(m_iconNaming(path.toStdString()).value_or(std::string()));
  QImage image;
  if (name.startsWith(u'/')) {
    image = pictureFile(name, edge);
  } else if (!name.isEmpty()) {
    image = QIcon::fromTheme(name).pixmap(QSize(edge, edge), 1.0).toImage();
  }
  return image.isNull() ? generalIcon(edge) : image;
}

}  // namespace quillmonger
