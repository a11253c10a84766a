#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QObject>
#include <QString>

namespace quillmonger {

/// Names colours for the views: "#rrggbb", or "#aarrggbb" for one that can be seen through. Not left to QML's own
/// conversion, in which Qt 6.4 can lose the colour to its garbage collection and crash. Main thread.
class ColorNames final : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON

 public:
  Q_INVOKABLE [[nodiscard]] QString name(const QColor& color) const {
    return color.name(color.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb);
  }
};

}  // namespace quillmonger
