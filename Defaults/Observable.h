#pragma once

#include <utility>
#include <variant>

#include "Defaults/Defaults.h"
#include "Foundation/Stream.h"
#include "Foundation/Subscription.h"

namespace defaults {

/// A setting as a view holds it. Main thread only, and so is whoever changes the key meanwhile.
template <typename T>
class Observable final {
 public:
  /// `defaults` outlives this object.
  Observable(Defaults& defaults, Key<T> key)
      : m_defaults(defaults),
        m_key(std::move(key)),
        m_updates(m_defaults.updates(m_key, Defaults::Initial::no, [this](const T&) { m_objectWillChange.send({}); })) {
  }

  [[nodiscard]] T value() const { return m_defaults[m_key]; }
  void set(const T& value) { m_defaults.set(m_key, value); }
  /// Removes the stored value, so that the default is read.
  void reset() { m_defaults.reset(m_key); }

  /// Fires with each change, whoever made it: the view is to be drawn again, and `value` gives what it then shows.
  [[nodiscard]] foundation::Stream<std::monostate>& objectWillChange() { return m_objectWillChange; }

 private:
  Defaults& m_defaults;
  Key<T> m_key;
  foundation::Stream<std::monostate> m_objectWillChange;
  foundation::Subscription m_updates;
};

}  // namespace defaults
