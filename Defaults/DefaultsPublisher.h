#pragma once

#include <functional>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

#include "Defaults/CompositeUserDefaultsKeyObservation.h"
#include "Defaults/KeyChange.h"
#include "Foundation/Subscription.h"

namespace defaults {

/// The changes of a key, for any number of receivers, each with the notices that the options ask for. Watches nothing
/// until someone subscribes. The store must outlive this object; a subscription may outlive both. Threads as in
/// `UserDefaults`.
template <typename T>
class DefaultsPublisher final {
 public:
  DefaultsPublisher(UserDefaults& suite, Key<T> key, ObservationOptions options)
      : m_suite(suite), m_key(std::move(key)), m_options(options) {}

  foundation::Subscription subscribe(std::type_identity_t<std::function<void(const KeyChange<T>&)>> receiver) const {
    return m_suite.addObserver(m_key.name(), m_options,
                               [key = m_key, receiver = std::move(receiver)](const BaseChange& change) {
                                 receiver(KeyChange<T>(key, change));
                               });
  }

 private:
  UserDefaults& m_suite;
  Key<T> m_key;
  ObservationOptions m_options;
};

/// The same for several keys, whose changes it merges and gives without values.
class MergedDefaultsPublisher final {
 public:
  MergedDefaultsPublisher(std::vector<SuiteKeyPair> observables, ObservationOptions options)
      : m_observables(std::move(observables)), m_options(options) {}

  foundation::Subscription subscribe(std::function<void()> receiver) const {
    auto observation = std::make_shared<CompositeUserDefaultsKeyObservation>(
        m_observables, m_options, [receiver = std::move(receiver)](const BaseChange&) { receiver(); });
    return foundation::Subscription([observation = std::move(observation)] { observation->invalidate(); });
  }

 private:
  std::vector<SuiteKeyPair> m_observables;
  ObservationOptions m_options;
};

}  // namespace defaults
