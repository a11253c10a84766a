#pragma once

#include <map>
#include <optional>
#include <string>
#include <utility>

#include "Defaults/Bridge.h"
#include "Defaults/Object.h"

namespace defaults {

/// A map of the elements' stored forms. As with a list, the whole stands or falls with each element.
template <typename T, typename Order>
struct DictionaryBridge {
  using Dictionary = std::map<std::string, T, Order>;

  static std::optional<Object> serialize(const Dictionary& values) {
    Object::Map map;
    for (const auto& [name, value] : values) {
      auto object = Bridge<T>::serialize(value);
      if (!object.has_value()) return std::nullopt;
      map.emplace(name, *std::move(object));
    }
    return Object(std::move(map));
  }
  static std::optional<Dictionary> deserialize(const Object& object) {
    const auto* map = object.as<Object::Map>();
    if (map == nullptr) return std::nullopt;
    Dictionary values;
    for (const auto& [name, element] : *map) {
      auto value = Bridge<T>::deserialize(element);
      if (!value.has_value()) return std::nullopt;
      values.emplace(name, *std::move(value));
    }
    return values;
  }
};

template <typename T, typename Order>
struct Bridge<std::map<std::string, T, Order>> : DictionaryBridge<T, Order> {};

}  // namespace defaults
