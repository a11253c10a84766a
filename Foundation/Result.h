#pragma once

#include <string>
#include <utility>
#include <variant>

namespace foundation {

/// Why an internal operation failed, in words for the diagnostic output.
struct Error {
  std::string message;
};

/// A value, or the reason why there is none.
template <typename T>
class [[nodiscard]] Result final {
 public:
  Result(T value) : m_content(std::move(value)) {}      // NOLINT(google-explicit-constructor): reads as the value
  Result(Error error) : m_content(std::move(error)) {}  // NOLINT(google-explicit-constructor): reads as the error

  [[nodiscard]] bool hasValue() const { return m_content.index() == 0; }
  explicit operator bool() const { return hasValue(); }
  /// Only with a value.
  [[nodiscard]] T& value() { return std::get<0>(m_content); }
  [[nodiscard]] const T& value() const { return std::get<0>(m_content); }
  /// Only without a value.
  [[nodiscard]] const Error& error() const { return std::get<1>(m_content); }

 private:
  std::variant<T, Error> m_content;
};

/// The result of an operation that gives nothing but may fail.
using Outcome = Result<std::monostate>;
inline Outcome success() { return std::monostate{}; }

}  // namespace foundation
