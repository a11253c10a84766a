#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QQuickTextDocument>

namespace quillmonger {

/// Has each paragraph of a text run in the direction of its own first letter, where the view alone would take that of
/// the first paragraph for all. Not final, since QML derives from what it makes.
class ParagraphDirections : public QObject {
  Q_OBJECT
  QML_ELEMENT

 public:
  using QObject::QObject;

  /// Anew for each text of the document, which is borrowed.
  Q_INVOKABLE void apply(QQuickTextDocument* document) const;
};

}  // namespace quillmonger
