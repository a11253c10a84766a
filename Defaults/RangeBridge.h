#pragma once

#include <array>
#include <optional>
#include <utility>

#include "Defaults/Bridge.h"
#include "Defaults/Object.h"

namespace defaults {

/// From `lower` to `upper`, which is not the lesser of the two.
template <typename T>
struct Range {
  T lower;
  T upper;
  bool operator==(const Range&) const = default;
};

/// A list of two: the lower and the upper bound. A lower bound above the upper one is neither stored nor read.
template <typename T>
struct RangeBridge {
  static std::optional<Object> serialize(const Range<T>& range) {
    auto lower = Bridge<T>::serialize(range.lower);
    auto upper = Bridge<T>::serialize(range.upper);
    if (!lower.has_value() || !upper.has_value() || !(range.lower <= range.upper)) return std::nullopt;
    return Object(Object::List{*std::move(lower), *std::move(upper)});
  }
  static std::optional<Range<T>> deserialize(const Object& object) {
    const auto* list = object.as<Object::List>();
    if (list == nullptr || list->size() != 2) return std::nullopt;
    auto lower = Bridge<T>::deserialize(list->front());
    auto upper = Bridge<T>::deserialize(list->back());
    if (!lower.has_value() || !upper.has_value() || !(*lower <= *upper)) return std::nullopt;
    return Range<T>{*std::move(lower), *std::move(upper)};
  }
};

template <typename T>
struct Bridge<Range<T>> : RangeBridge<T> {};

}  // namespace defaults
