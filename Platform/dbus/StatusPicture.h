#pragma once

#include <QImage>
#include <QList>
#include <QSvgRenderer>
#include <string>

#include "Platform/dbus/StatusNotifierTypes.h"

namespace platform {

/// The status item's picture: a drawing in one colour that can be told from dark panels and from light ones, since no
/// desktop says how its own is painted.
class StatusPicture final {
 public:
  /// `place`: a file or resource with an SVG drawing, whose own colours only say where ink is. Nothing is drawn for
  /// one that is none.
  void setDrawing(const std::string& place);
  /// How far above its place the drawing stands, in points, of which the picture is 22 high.
  void setOffset(double points) { m_offset = points; }

  /// `size`: of each side, in pixels.
  [[nodiscard]] QImage image(int size) const;
  /// In the sizes that panels ask for.
  [[nodiscard]] QList<NotifierPixmap> pixmaps() const;

 private:
  // Its drawing call counts as one that changes it.
  mutable QSvgRenderer m_renderer;
  double m_offset = 0;
};

}  // namespace platform
