#pragma once

#include <cstdint>
#include <map>
#include <utility>

#include "Quillmonger/input/LocalEventMonitoring.h"

namespace testsupport {

/// The program's key events without a keyboard: the test presses the keys.
class FakeLocalEventMonitor final : public quillmonger::LocalEventMonitoring {
 public:
  foundation::Subscription addLocalMonitor(Handler handler) override {
    const int identifier = m_nextIdentifier++;
    m_handlers.emplace(identifier, std::move(handler));
    return foundation::Subscription([this, identifier] { m_handlers.erase(identifier); });
  }

  /// Whether a monitor swallowed the event.
  bool send(const quillmonger::KeyEvent& event) {
    const auto handlers = m_handlers;
    for (const auto& [identifier, handler] : handlers) {
      if (handler(event) == Disposition::swallow) return true;
    }
    return false;
  }
  bool press(std::uint16_t keyCode, std::uint32_t modifierFlags = 0) {
    return send({quillmonger::KeyEvent::Type::keyDown, keyCode, modifierFlags});
  }
  [[nodiscard]] bool hasMonitors() const { return !m_handlers.empty(); }

 private:
  std::map<int, Handler> m_handlers;
  int m_nextIdentifier = 0;
};

}  // namespace testsupport
