#pragma once

#include <concepts>
#include <optional>
#include <utility>
#include <vector>

#include "Defaults/ArrayBridge.h"
#include "Defaults/Bridge.h"
#include "Defaults/Object.h"

namespace defaults {

/// A set of options: it names its elements' type, lists those it has, and takes one more.
template <typename T>
concept SetAlgebra = std::default_initializable<T> && requires(T options, const T& same, typename T::Element element) {
  { same.elements() } -> std::same_as<std::vector<typename T::Element>>;
  options.insert(element);
};

/// A list of the elements' stored forms.
template <SetAlgebra T>
struct SetAlgebraBridge {
  using Elements = std::vector<typename T::Element>;

  static std::optional<Object> serialize(const T& options) { return Bridge<Elements>::serialize(options.elements()); }
  static std::optional<T> deserialize(const Object& object) {
    const auto elements = Bridge<Elements>::deserialize(object);
    if (!elements.has_value()) return std::nullopt;
    T options;
    for (const auto& element : *elements)
      options.insert(element);
    return options;
  }
};

}  // namespace defaults
