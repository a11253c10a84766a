#pragma once

#include <optional>
#include <string>
#include <utility>

#include "Defaults/AnyKey.h"
#include "Defaults/Bridges.h"

namespace defaults {

/// One setting: the name it is stored under, its value type and its default. Lives for the whole process. Any thread.
template <typename T>
class Key final : public AnyKey {
 public:
  using Value = T;

  /// In the store of the `Defaults` that it is used with.
  Key(std::string name, T defaultValue) : AnyKey(std::move(name), nullptr), m_defaultValue(std::move(defaultValue)) {}
  /// In a store of its own, which outlives the key's use.
  Key(std::string name, T defaultValue, UserDefaults& suite)
      : AnyKey(std::move(name), &suite), m_defaultValue(std::move(defaultValue)) {}

  [[nodiscard]] const T& defaultValue() const { return m_defaultValue; }

  /// The value of a stored form; the default when there is none or it is of the wrong kind.
  [[nodiscard]] T valueOf(const std::optional<Object>& object) const {
    if (!object.has_value()) return m_defaultValue;
    return Bridge<T>::deserialize(*object).value_or(m_defaultValue);
  }

 private:
  T m_defaultValue;
};

}  // namespace defaults
