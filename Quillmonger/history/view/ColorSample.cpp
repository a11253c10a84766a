#include "Quillmonger/history/view/ColorSample.h"

#include <QPainter>
#include <QRadialGradient>
#include <algorithm>

namespace quillmonger {

namespace {

constexpr qreal padding = 1.5;
constexpr qreal cornerRadius = 15;
constexpr float darker = -0.05F;
constexpr float lighter = 0.1F;

// What a screen shows of a colour.
QColor shown(const QColor& color) { return color.toRgb(); }

QRadialGradient gradientAround(const QRectF& area, const QColor& color) {
  QRadialGradient gradient(area.center(), std::max(area.width(), area.height()) / 2);
  gradient.setColorAt(0, shown(adjusted(color, darker)));
  gradient.setColorAt(0.5, color);
  gradient.setColorAt(1, shown(adjusted(color, lighter)));
  return gradient;
}

}  // namespace

ColorSample::ColorSample(QQuickItem* parent) : QQuickPaintedItem(parent) {
  setAntialiasing(true);
  connect(this, &ColorSample::changed, this, [this] { update(); });
}

void ColorSample::setColor(const QColor& color) {
  if (color == m_color) return;
  m_color = color;
  emit changed();
}

void ColorSample::setWithGradient(bool withGradient) {
  if (withGradient == m_withGradient) return;
  m_withGradient = withGradient;
  emit changed();
}

void ColorSample::setOutline(const QColor& outline) {
  if (outline == m_outline) return;
  m_outline = outline;
  emit changed();
}

void ColorSample::paint(QPainter* painter) {
  const QRectF area = boundingRect().marginsRemoved({padding, padding, padding, padding});
  const qreal radius = std::min({cornerRadius, area.width() / 2, area.height() / 2});
  painter->setBrush(m_withGradient ? QBrush(gradientAround(area, m_color)) : QBrush(m_color));
  painter->setPen(QPen(m_outline, 1));
  painter->drawRoundedRect(area, radius, radius);
}

QColor adjusted(const QColor& color, float amount) {
  const QColor rgb = color.toRgb();
  if (!rgb.isValid()) return color;
  const auto part = [amount](float value) { return std::min(1.0F, value + amount); };
  return QColor::fromRgbF(part(rgb.redF()), part(rgb.greenF()), part(rgb.blueF()), rgb.alphaF());
}

}  // namespace quillmonger
