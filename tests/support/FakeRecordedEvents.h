#pragma once

#include <utility>

#include "KeyboardShortcuts/RecordedEvents.h"

namespace testsupport {

/// The user's keys and mouse without a window: the test presses them.
class FakeRecordedEvents final : public keyboardshortcuts::RecordedEvents {
 public:
  foundation::Subscription watch(Handler handler) override {
    m_handler = std::move(handler);
    return foundation::Subscription([this] { m_handler = nullptr; });
  }

  [[nodiscard]] bool isWatched() const { return static_cast<bool>(m_handler); }
  /// What nobody watches passes.
  Disposition send(const keyboardshortcuts::Event& event) {
    const Handler handler = m_handler;
    return handler ? handler(event) : Disposition::pass;
  }
  Disposition press(std::uint16_t keyCode, std::uint32_t modifierFlags = 0) {
    return send({.keyCode = keyCode, .modifierFlags = modifierFlags});
  }

 private:
  Handler m_handler;
};

}  // namespace testsupport
