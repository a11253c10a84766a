#pragma once

#include <concepts>
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "Foundation/RunLoop.h"

namespace defaults {

using Bytes = std::vector<std::uint8_t>;

template <typename T, typename Variant>
inline constexpr bool isKindOf = false;
template <typename T, typename... Kinds>
inline constexpr bool isKindOf<T, std::variant<Kinds...>> = (std::same_as<T, Kinds> || ...);

/// A stored form: what the key-value store holds under a name. Each kind keeps its own width, and equal means equal in
/// kind too. A value. Any thread.
class Object final {
 public:
  using List = std::vector<Object>;
  using Map = std::map<std::string, Object, std::less<>>;
  using Value = std::variant<bool, std::int64_t, float, double, std::string, foundation::Date, Bytes, List, Map>;

  /// A store takes lists and maps within each other up to here.
  static constexpr int depthLimit = 16;

  /// Takes exactly the kinds of `Value`: a number of another width is an error of the compiler.
  template <typename T>
  requires isKindOf<T, Value> Object(T value)  // NOLINT(google-explicit-constructor): reads as the value
      : m_value(std::in_place_type<T>, std::move(value)) {}

  [[nodiscard]] const Value& value() const { return m_value; }
  /// Null for another kind.
  template <typename T>
  [[nodiscard]] const T* as() const {
    return std::get_if<T>(&m_value);
  }

  /// Whether more than `limit` lists and maps lie within each other. Looks no deeper.
  [[nodiscard]] bool isDeeperThan(int limit) const;

  bool operator==(const Object& other) const = default;

 private:
  Value m_value;
};

}  // namespace defaults
