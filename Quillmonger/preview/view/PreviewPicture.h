#pragma once

#include <QtQml/qqmlregistration.h>
#include <QImage>
#include <QQuickItem>

namespace quillmonger {

/// A picture that fills its item. It holds no more than the picture's own pixels, however large it is shown. Not final,
/// since QML derives from what it makes.
class PreviewPicture : public QQuickItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QImage picture READ picture WRITE setPicture NOTIFY pictureChanged)

 public:
  explicit PreviewPicture(QQuickItem* parent = nullptr);

  [[nodiscard]] QImage picture() const { return m_picture; }
  void setPicture(const QImage& picture);

 signals:
  void pictureChanged();

 protected:
  QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData* data) override;

 private:
  QImage m_picture;
  bool m_isNew = false;
};

}  // namespace quillmonger
