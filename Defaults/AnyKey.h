#pragma once

#include <string>
#include <utility>

#include "Defaults/UserDefaults.h"

namespace defaults {

/// The untyped part of a key. Any thread.
class AnyKey {
 public:
  [[nodiscard]] const std::string& name() const { return m_name; }
  /// The store of this key; `standard` unless the key has one of its own.
  [[nodiscard]] UserDefaults& suiteOr(UserDefaults& standard) const { return m_suite == nullptr ? standard : *m_suite; }

 protected:
  AnyKey(std::string name, UserDefaults* suite) : m_name(std::move(name)), m_suite(suite) {}
  ~AnyKey() = default;
  AnyKey(const AnyKey&) = default;
  AnyKey& operator=(const AnyKey&) = default;

 private:
  std::string m_name;
  UserDefaults* m_suite;
};

}  // namespace defaults
