#pragma once

#include <concepts>
#include <optional>
#include <ranges>
#include <utility>

#include "Defaults/Bridge.h"
#include "Defaults/NativeBridge.h"
#include "Defaults/Object.h"

namespace defaults {

template <typename T>
concept Collection =
    !Native<T> && std::default_initializable<T> && requires(T values, std::ranges::range_value_t<T> value) {
  values.insert(values.end(), std::move(value));
};

/// A list of the elements' stored forms, in the collection's order. The whole has no stored form when one element has
/// none, and reads as nothing when one element can't be read: half a list would pass for the user's choice.
template <typename T>
struct CollectionBridge {
  using Element = std::ranges::range_value_t<T>;

  static std::optional<Object> serialize(const T& values) {
    Object::List list;
    for (const auto& value : values) {
      auto object = Bridge<Element>::serialize(value);
      if (!object.has_value()) return std::nullopt;
      list.push_back(*std::move(object));
    }
    return Object(std::move(list));
  }
  static std::optional<T> deserialize(const Object& object) {
    const auto* list = object.as<Object::List>();
    if (list == nullptr) return std::nullopt;
    T values;
    for (const auto& element : *list) {
      auto value = Bridge<Element>::deserialize(element);
      if (!value.has_value()) return std::nullopt;
      values.insert(values.end(), *std::move(value));
    }
    return values;
  }
};

template <Collection T>
struct Bridge<T> : CollectionBridge<T> {};

}  // namespace defaults
