#pragma once

#include <optional>
#include <string>
#include <utility>

#include "Defaults/Bridge.h"

namespace defaults {

/// One setting: the name it is stored under, its value type and its default. Lives for the whole process. Any thread.
template <typename T>
class Key final {
 public:
  using Value = T;

  Key(std::string name, T defaultValue) : m_name(std::move(name)), m_defaultValue(std::move(defaultValue)) {}

  [[nodiscard]] const std::string& name() const { return m_name; }
  [[nodiscard]] const T& defaultValue() const { return m_defaultValue; }

  /// The value of a stored form; the default when there is none or it is of the wrong kind.
  [[nodiscard]] T valueOf(const std::optional<Object>& object) const {
    if (!object.has_value()) return m_defaultValue;
    return Bridge<T>::deserialize(*object).value_or(m_defaultValue);
  }

 private:
  std::string m_name;
  T m_defaultValue;
};

}  // namespace defaults
