#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace quillmonger {

enum class JsonStyle : std::uint8_t {
  oneLine,        ///< {"a":[1]}
  prettyPrinted,  ///< a line a value, indented by two spaces a level, keys as `"a" : 1`
};

/// Writes one JSON document from what a reader hands over, in the reader's order. One thread at a time.
class JsonWriter final {
 public:
  explicit JsonWriter(JsonStyle style) : m_style(style) {}

  /// `bracket` is '{' or '['.
  void open(char bracket);
  /// `bracket` is '}' or ']', and fits the last open one.
  void close(char bracket);
  /// The name of the value that comes next. `text` is valid UTF-8, as for `addString`.
  void addKey(std::string_view text);
  void addString(std::string_view text);
  /// A number, "true", "false" or "null", as it is to stand.
  void addWord(std::string_view text);

  /// A short document that is nested deeply can have a very long pretty form: more than 256 MiB is too long.
  [[nodiscard]] bool isTooLong() const { return m_text.size() > longest; }
  /// The document. The writer is empty then.
  [[nodiscard]] std::string take() { return std::move(m_text); }

 private:
  static constexpr std::size_t longest = 256U << 20U;

  void startValue();
  void startLine();
  void quote(std::string_view text);

  JsonStyle m_style;
  std::string m_text;
  std::size_t m_depth = 0;
  bool m_isFirst = true;      // in its object or array
  bool m_isAfterKey = false;  // the value stands on the line of its key
};

}  // namespace quillmonger
