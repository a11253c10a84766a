#pragma once

#include <string>
#include <utility>

#include "Defaults/CompositeUserDefaultsKeyObservation.h"

namespace defaults {

/// Watches one key.
class [[nodiscard]] UserDefaultsKeyObservation final : public CompositeUserDefaultsKeyObservation {
 public:
  UserDefaultsKeyObservation(UserDefaults& object, std::string key, ObservationOptions options,
                             UserDefaults::Observer callback)
      : CompositeUserDefaultsKeyObservation({{object, std::move(key)}}, options, std::move(callback)) {}
};

}  // namespace defaults
