#pragma once

#include <functional>
#include <initializer_list>
#include <optional>
#include <type_traits>
#include <utility>
#include <vector>

#include "Defaults/DefaultsPublisher.h"
#include "Defaults/Key.h"
#include "Defaults/KeyChange.h"
#include "Defaults/UserDefaults.h"
#include "Defaults/UserDefaultsKeyObservation.h"
#include "Foundation/Subscription.h"

namespace defaults {

/// The typed layer over a store: settings are read and written by their keys, never by a name or a stored form. A key
/// with a store of its own is read and written there. Nothing here throws. The store must outlive this object;
/// observations may outlive both. Threads as in `UserDefaults`.
class Defaults final {
 public:
  explicit Defaults(UserDefaults& suite) : m_suite(suite) {}

  [[nodiscard]] UserDefaults& suite() const { return m_suite; }

  /// Registers the key's default, so that the untyped store answers with it too. Not for an empty optional.
  template <typename T>
  void declare(const Key<T>& key) {
    if (auto object = Bridge<T>::serialize(key.defaultValue())) {
      suiteOf(key).registerDefaults({{key.name(), *std::move(object)}});
    }
  }

  template <typename T>
  [[nodiscard]] T operator[](const Key<T>& key) const {
    return key.valueOf(suiteOf(key).objectForKey(key.name()));
  }

  /// A value without a stored form, such as an empty optional, removes the stored entry.
  template <typename T>
  void set(const Key<T>& key, const std::type_identity_t<T>& value) {
    if (auto object = Bridge<T>::serialize(value)) {
      suiteOf(key).setObject(key.name(), *std::move(object));
    } else {
      suiteOf(key).removeObject(key.name());
    }
  }

  /// Removes the stored entries, so that the keys read as their defaults.
  template <typename... T>
  void reset(const Key<T>&... keys) {
    (suiteOf(keys).removeObject(keys.name()), ...);
  }

  template <typename T>
  UserDefaultsKeyObservation observe(const Key<T>& key, ObservationOptions options,
                                     std::type_identity_t<std::function<void(const KeyChange<T>&)>> handler) {
    return {suiteOf(key), key.name(), options,
            [key, handler = std::move(handler)](const BaseChange& change) { handler(KeyChange<T>(key, change)); }};
  }

  template <typename T>
  [[nodiscard]] DefaultsPublisher<T> publisher(const Key<T>& key, ObservationOptions options) const {
    return {suiteOf(key), key, options};
  }
  [[nodiscard]] MergedDefaultsPublisher publisher(std::initializer_list<std::reference_wrapper<const AnyKey>> keys,
                                                  ObservationOptions options) const {
    std::vector<SuiteKeyPair> observables;
    for (const AnyKey& key : keys)
      observables.push_back({suiteOf(key), key.name()});
    return {std::move(observables), options};
  }

  enum class Initial : bool { no, yes };

  /// Calls `receiver` after each change, and with `Initial::yes` also before this returns, with the value that the key
  /// has at that moment: when a receiver changes the key itself, the last value that each receiver hears is the one
  /// that stands.
  template <typename T>
  foundation::Subscription updates(const Key<T>& key, Initial initial,
                                   std::type_identity_t<std::function<void(const T&)>> receiver) {
    const auto options = initial == Initial::yes ? ObservationOptions::initial : ObservationOptions::none;
    UserDefaults& suite = suiteOf(key);
    return suite.addObserver(key.name(), options, [key, &suite, receiver = std::move(receiver)](const BaseChange&) {
      receiver(key.valueOf(suite.objectForKey(key.name())));
    });
  }

  /// See `UserDefaults::withoutPropagation`.
  static void withoutPropagation(const std::function<void()>& body) { UserDefaults::withoutPropagation(body); }

 private:
  [[nodiscard]] UserDefaults& suiteOf(const AnyKey& key) const { return key.suiteOr(m_suite); }

  UserDefaults& m_suite;
};

}  // namespace defaults
