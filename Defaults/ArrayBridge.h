#pragma once

#include <vector>

#include "Defaults/CollectionBridge.h"

namespace defaults {

/// A list of the elements' stored forms.
template <typename T>
struct ArrayBridge : CollectionBridge<std::vector<T>> {};

template <typename T>
struct Bridge<std::vector<T>> : ArrayBridge<T> {};

}  // namespace defaults
