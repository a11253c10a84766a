#pragma once

#include <algorithm>
#include <deque>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "Foundation/Subscription.h"

namespace foundation {

/// Values that arrive over time, for any number of receivers. Never fails and never ends but with its owner.
/// Main thread only.
///
/// - Receivers are called in the order in which they subscribed.
/// - One that subscribes during a delivery gets the next value first; one that unsubscribes gets nothing more.
/// - A `send` from within a receiver waits until the present value has reached every receiver.
/// - A stream that is destroyed by a receiver delivers nothing more.
template <typename T>
class Stream final {
 public:
  using Receiver = std::function<void(const T&)>;

  Stream() = default;
  Stream(const Stream&) = delete;
  Stream& operator=(const Stream&) = delete;
  ~Stream() { m_state->isOpen = false; }

  Subscription subscribe(Receiver receiver) {
    auto entry = std::make_shared<Entry>(Entry{std::move(receiver), true});
    m_state->entries.push_back(entry);
    return Subscription([entry, state = std::weak_ptr<State>(m_state)] {
      entry->isActive = false;
      if (const auto present = state.lock()) std::erase(present->entries, entry);
    });
  }

  void send(T value) {
    const auto state = m_state;
    state->waiting.push_back(std::move(value));
    if (state->isDelivering) return;
    state->isDelivering = true;
    while (state->isOpen && !state->waiting.empty()) {
      const T present = std::move(state->waiting.front());
      state->waiting.pop_front();
      const auto entries = state->entries;
      for (const auto& entry : entries) {
        if (!state->isOpen) break;
        if (entry->isActive) entry->receiver(present);
      }
    }
    state->isDelivering = false;
  }

 private:
  struct Entry {
    Receiver receiver;
    bool isActive;
  };
  struct State {
    std::vector<std::shared_ptr<Entry>> entries;
    std::deque<T> waiting;
    bool isDelivering = false;
    bool isOpen = true;
  };
  std::shared_ptr<State> m_state = std::make_shared<State>();
};

}  // namespace foundation
