#include "Platform/dbus/StatusNotifierBar.h"

#include <utility>

#include "Platform/dbus/StatusNotifierItem.h"
#include "Platform/dbus/StatusNotifierTypes.h"

namespace platform {

StatusNotifierBar::StatusNotifierBar(const QDBusConnection& sessionBus, DrawingLookup drawings)
    : m_sessionBus(sessionBus), m_drawings(std::move(drawings)) {
  registerStatusNotifierTypes();
}

std::unique_ptr<quillmonger::StatusItem> StatusNotifierBar::statusItem() {
  return std::make_unique<StatusNotifierItem>(m_sessionBus, m_drawings);
}

}  // namespace platform
