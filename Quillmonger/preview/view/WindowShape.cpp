#include "Quillmonger/preview/view/WindowShape.h"

#include <QQuickWindow>
#include <QRegion>

namespace quillmonger {

void WindowShape::geometryChange(const QRectF& present, const QRectF& before) {
  QQuickItem::geometryChange(present, before);
  shapeWindow();
}

void WindowShape::itemChange(ItemChange change, const ItemChangeData& data) {
  QQuickItem::itemChange(change, data);
  if (change == ItemSceneChange) shapeWindow();
}

void WindowShape::shapeWindow() const {
  const QRect area = mapRectToScene(boundingRect()).toAlignedRect();
  if (window() != nullptr && !area.isEmpty()) window()->setMask(QRegion(area));
}

}  // namespace quillmonger
