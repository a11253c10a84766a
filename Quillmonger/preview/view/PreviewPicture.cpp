#include "Quillmonger/preview/view/PreviewPicture.h"

#include <QQuickWindow>
#include <QSGImageNode>
#include <utility>

namespace quillmonger {

PreviewPicture::PreviewPicture(QQuickItem* parent) : QQuickItem(parent) { setFlag(ItemHasContents); }

void PreviewPicture::setPicture(const QImage& picture) {
  if (picture.cacheKey() == m_picture.cacheKey()) return;
  m_picture = picture;
  m_isNew = true;
  update();
  emit pictureChanged();
}

QSGNode* PreviewPicture::updatePaintNode(QSGNode* node, UpdatePaintNodeData* /*data*/) {
  auto* image = static_cast<QSGImageNode*>(node);
  const bool isNew = std::exchange(m_isNew, false) || image == nullptr;
  if (m_picture.isNull()) {
    delete image;
    return nullptr;
  }
  if (image == nullptr) {
    image = window()->createImageNode();
    image->setOwnsTexture(true);
    image->setFiltering(QSGTexture::Linear);
  }
  if (isNew) image->setTexture(window()->createTextureFromImage(m_picture));
  image->setRect(boundingRect());
  return image;
}

}  // namespace quillmonger
