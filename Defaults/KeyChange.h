#pragma once

#include "Defaults/Key.h"
#include "Defaults/UserDefaults.h"

namespace defaults {

/// One change of a key, with the key's default in place of a missing value.
template <typename T>
struct KeyChange {
  KeyChange(const Key<T>& key, const BaseChange& change)
      : kind(change.kind),
        isPrior(change.isPrior),
        newValue(key.valueOf(change.newValue)),
        oldValue(key.valueOf(change.oldValue)) {}

  ChangeKind kind;
  bool isPrior;
  T newValue;
  T oldValue;
};

}  // namespace defaults
