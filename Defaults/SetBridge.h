#pragma once

#include <set>

#include "Defaults/CollectionBridge.h"

namespace defaults {

/// A list of the elements' stored forms. An element that is stored twice is read once.
template <typename T>
struct SetBridge : CollectionBridge<std::set<T>> {};

template <typename T>
struct Bridge<std::set<T>> : SetBridge<T> {};

}  // namespace defaults
