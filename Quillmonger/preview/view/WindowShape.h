#pragma once

#include <QtQml/qqmlregistration.h>
#include <QQuickItem>

namespace quillmonger {

/// Leaves of the item's window only what lies under the item: the rest is neither drawn nor takes clicks. Not final,
/// since QML derives from what it makes.
class WindowShape : public QQuickItem {
  Q_OBJECT
  QML_ELEMENT

 public:
  using QQuickItem::QQuickItem;

 protected:
  void geometryChange(const QRectF& present, const QRectF& before) override;
  void itemChange(ItemChange change, const ItemChangeData& data) override;

 private:
  void shapeWindow() const;
};

}  // namespace quillmonger
