#include "Quillmonger/resources/SymbolProvider.h"

#include <QColor>
#include <QPainter>
#include <QSvgRenderer>

namespace quillmonger {

namespace {

constexpr QSize usualSize{24, 24};

}  // namespace

SymbolProvider::SymbolProvider() : QQuickImageProvider(QQuickImageProvider::Image) {}

QImage SymbolProvider::requestImage(const QString& id, QSize* size, const QSize& requestedSize) {
  const qsizetype mark = id.indexOf(u'?');
  QSvgRenderer renderer(QStringLiteral(":/qt-project.org/imports/Quillmonger/Resources/%1.svg").arg(id.left(mark)));
  if (!renderer.isValid()) return {};
  QImage image(requestedSize.isEmpty() ? usualSize : requestedSize, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  renderer.render(&painter);
  // The drawing's own colour only says where ink is.
  painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
  painter.fillRect(image.rect(), QColor(id.mid(mark + 1)));
  *size = image.size();
  return image;
}

}  // namespace quillmonger
