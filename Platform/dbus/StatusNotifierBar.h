#pragma once

#include <QDBusConnection>
#include <functional>
#include <string>

#include "Quillmonger/shell/StatusItem.h"

namespace platform {

/// The desktop's tray over the session bus, as a StatusNotifierItem. A tray that starts later, or anew, gets the item
/// then. A desktop without one is told of on standard output, once. Main thread; nothing waits for another process.
/// Made after the application object, and gone before it.
class StatusNotifierBar final : public quillmonger::StatusBar {
 public:
  /// Where the SVG drawing of a picture's name is.
  using DrawingLookup = std::function<std::string(const std::string& name)>;

  StatusNotifierBar(const QDBusConnection& sessionBus, DrawingLookup drawings);

  /// One at a time.
  [[nodiscard]] std::unique_ptr<quillmonger::StatusItem> statusItem() override;

 private:
  QDBusConnection m_sessionBus;
  DrawingLookup m_drawings;
};

}  // namespace platform
