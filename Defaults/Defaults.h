#pragma once

#include <functional>
#include <optional>
#include <type_traits>
#include <utility>

#include "Defaults/Key.h"
#include "Defaults/UserDefaults.h"
#include "Foundation/Subscription.h"

namespace defaults {

/// One change of a key, with the key's default in place of a missing value.
template <typename T>
struct KeyChange {
  bool isPrior;
  T newValue;
  T oldValue;
};

/// The typed layer over a store: settings are read and written by their keys, never by a name or a stored form.
/// Nothing here throws. The store must outlive this object; observations may outlive both. Threads as in
/// `UserDefaults`.
class Defaults final {
 public:
  explicit Defaults(UserDefaults& suite) : m_suite(suite) {}

  [[nodiscard]] UserDefaults& suite() const { return m_suite; }

  /// Registers the key's default, so that the untyped store answers with it too. Not for an empty optional.
  template <typename T>
  void declare(const Key<T>& key) {
    if (auto object = Bridge<T>::serialize(key.defaultValue())) {
      m_suite.registerDefaults({{key.name(), *std::move(object)}});
    }
  }

  template <typename T>
  [[nodiscard]] T operator[](const Key<T>& key) const {
    return key.valueOf(m_suite.objectForKey(key.name()));
  }

  /// A value without a stored form, such as an empty optional, removes the stored entry.
  template <typename T>
  void set(const Key<T>& key, const std::type_identity_t<T>& value) {
    if (auto object = Bridge<T>::serialize(value)) {
      m_suite.setObject(key.name(), *std::move(object));
    } else {
      m_suite.removeObject(key.name());
    }
  }

  /// Removes the stored entries, so that the keys read as their defaults.
  template <typename... T>
  void reset(const Key<T>&... keys) {
    (m_suite.removeObject(keys.name()), ...);
  }

  template <typename T>
  foundation::Subscription observe(const Key<T>& key, ObservationOptions options,
                                   std::type_identity_t<std::function<void(const KeyChange<T>&)>> handler) {
    return m_suite.addObserver(key.name(), options, [key, handler = std::move(handler)](const BaseChange& change) {
      handler({change.isPrior, key.valueOf(change.newValue), key.valueOf(change.oldValue)});
    });
  }

  enum class Initial : bool { no, yes };

  /// Calls `receiver` after each change, and with `Initial::yes` also before this returns, with the value that the key
  /// has at that moment: when a receiver changes the key itself, the last value that each receiver hears is the one
  /// that stands.
  template <typename T>
  foundation::Subscription updates(const Key<T>& key, Initial initial,
                                   std::type_identity_t<std::function<void(const T&)>> receiver) {
    const auto options = initial == Initial::yes ? ObservationOptions::initial : ObservationOptions::none;
    return m_suite.addObserver(key.name(), options,
                               [key, &suite = m_suite, receiver = std::move(receiver)](const BaseChange&) {
                                 receiver(key.valueOf(suite.objectForKey(key.name())));
                               });
  }

  /// See `UserDefaults::withoutPropagation`.
  static void withoutPropagation(const std::function<void()>& body) { UserDefaults::withoutPropagation(body); }

 private:
  UserDefaults& m_suite;
};

}  // namespace defaults
