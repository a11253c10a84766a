#include "Defaults/CompositeUserDefaultsKeyObservation.h"

#include <algorithm>
#include <iterator>
#include <mutex>

namespace defaults {

/// What the stores know of the observation beside its callback. It owns the observation once it is tied: the stores own
/// this, so the observation goes with the last of them at the latest.
struct CompositeUserDefaultsKeyObservation::LifetimeAssociation {
  using Subscriptions = std::vector<foundation::Subscription>;

  void tie(std::weak_ptr<const void> newOwner, Subscriptions subscriptions) {
    const std::lock_guard lock(mutex);
    owner = std::move(newOwner);
    isTied = true;
    std::ranges::move(subscriptions, std::back_inserter(owned));
  }
  bool isOver() {
    const std::lock_guard lock(mutex);
    return isTied && owner.expired();
  }
  void end() {
    Subscriptions ended;
    const std::lock_guard lock(mutex);
    ended.swap(owned);
  }

  std::mutex mutex;
  bool isTied = false;
  std::weak_ptr<const void> owner;
  Subscriptions owned;
};

CompositeUserDefaultsKeyObservation::CompositeUserDefaultsKeyObservation(const std::vector<SuiteKeyPair>& observables,
                                                                         ObservationOptions options,
                                                                         UserDefaults::Observer callback)
    : m_lifetimeAssociation(std::make_shared<LifetimeAssociation>()) {
  const auto report = [association = m_lifetimeAssociation, callback = std::move(callback)](const BaseChange& change) {
    if (association->isOver()) {
      association->end();
    } else {
      callback(change);
    }
  };
  for (const auto& [suite, key] : observables)
    m_subscriptions.push_back(suite.addObserver(key, options, report));
}

void CompositeUserDefaultsKeyObservation::invalidate() {
  m_subscriptions.clear();
  m_lifetimeAssociation->end();
}

void CompositeUserDefaultsKeyObservation::tieToLifetime(const std::shared_ptr<const void>& owner) {
  m_lifetimeAssociation->tie(owner, std::exchange(m_subscriptions, {}));
}

}  // namespace defaults
