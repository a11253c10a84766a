#pragma once

#include <functional>
#include <utility>

#include "Foundation/Stream.h"

namespace foundation {

/// A value that can be followed: read it at any time, and hear of each assignment after it has been made.
/// Every assignment is told, also one of an equal value. Main thread only; delivery as in `Stream`.
template <typename T>
class Published final {
 public:
  Published() = default;
  explicit Published(T value) : m_value(std::move(value)) {}

  [[nodiscard]] const T& value() const { return m_value; }
  void set(T value) {
    m_value = std::move(value);
    m_changes.send(m_value);
  }

  /// Calls `receiver` with each later value.
  Subscription subscribe(typename Stream<T>::Receiver receiver) { return m_changes.subscribe(std::move(receiver)); }
  /// Calls `receiver` with the present value before it returns, and with each later value.
  Subscription follow(typename Stream<T>::Receiver receiver) {
    receiver(m_value);
    return m_changes.subscribe(std::move(receiver));
  }

 private:
  T m_value{};
  Stream<T> m_changes;
};

}  // namespace foundation
