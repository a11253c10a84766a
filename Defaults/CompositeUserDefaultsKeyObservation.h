#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "Defaults/UserDefaults.h"
#include "Foundation/Subscription.h"

namespace defaults {

/// A key of a store. The store need only be there while an observation is made.
struct SuiteKeyPair {
  UserDefaults& suite;
  std::string key;
};

/// Watches several keys, from its making to `invalidate` or its destruction, and holds none of their stores. Any
/// thread, one at a time; the callback runs where `UserDefaults` calls observers.
class [[nodiscard]] CompositeUserDefaultsKeyObservation {
 public:
  CompositeUserDefaultsKeyObservation(const std::vector<SuiteKeyPair>& observables, ObservationOptions options,
                                      UserDefaults::Observer callback);

  /// No callback comes after this, but for one that is already on its way on another thread.
  void invalidate();

  /// From now on the observation lives and ends with `owner`, whatever becomes of this object, which can still
  /// `invalidate` it. The end shows at the next change: no callback comes then, and what it holds is let go.
  void tieToLifetime(const std::shared_ptr<const void>& owner);

 private:
  struct LifetimeAssociation;

  std::shared_ptr<LifetimeAssociation> m_lifetimeAssociation;
  std::vector<foundation::Subscription> m_subscriptions;
};

}  // namespace defaults
