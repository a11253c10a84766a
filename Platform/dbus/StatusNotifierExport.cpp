#include "Platform/dbus/StatusNotifierExport.h"

namespace platform {

void StatusNotifierExport::setDrawing(const std::string& place) {
  m_picture.setDrawing(place);
  emit NewIcon();
}

void StatusNotifierExport::setOffset(double points) {
  m_picture.setOffset(points);
  emit NewIcon();
}

}  // namespace platform
