#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QQuickPaintedItem>

namespace quillmonger {

/// A colour in a round outline, flat or as a gradient from a darker middle to a lighter edge. Not final, since QML
/// derives from what it makes.
class ColorSample : public QQuickPaintedItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY changed)
  Q_PROPERTY(bool withGradient READ withGradient WRITE setWithGradient NOTIFY changed)
  Q_PROPERTY(QColor outline READ outline WRITE setOutline NOTIFY changed)

 public:
  explicit ColorSample(QQuickItem* parent = nullptr);

  [[nodiscard]] QColor color() const { return m_color; }
  void setColor(const QColor& color);
  [[nodiscard]] bool withGradient() const { return m_withGradient; }
  void setWithGradient(bool withGradient);
  [[nodiscard]] QColor outline() const { return m_outline; }
  void setOutline(const QColor& outline);

  void paint(QPainter* painter) override;

 signals:
  void changed();

 private:
  QColor m_color;
  bool m_withGradient = false;
  QColor m_outline;
};

/// `color` with `amount` added to red, green and blue, each of them at most 1. There is no lower bound: below 0 the
/// colour is one that no screen shows. The opacity stays.
[[nodiscard]] QColor adjusted(const QColor& color, float amount);

}  // namespace quillmonger
