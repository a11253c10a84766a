#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace foundation {

/// A URL in its absolute string form, split as RFC 3986, appendix B. Any thread.
class Url final {
 public:
  /// Absent for text with characters that no URL holds (controls, spaces, quotes, bytes above ASCII, a bad percent
  /// escape), and for the empty text.
  [[nodiscard]] static std::optional<Url> parse(std::string_view text);
  /// The "file" URL of an absolute path. Every byte outside RFC 3986's unreserved characters and "/" is escaped.
  [[nodiscard]] static Url fromFilePath(std::string_view path);

  [[nodiscard]] const std::string& absoluteString() const { return m_text; }
  /// In lower case; absent without one.
  [[nodiscard]] std::optional<std::string> scheme() const;
  /// Without user and port; absent when there is no authority or the host is empty.
  [[nodiscard]] std::optional<std::string> host() const;
  /// The decoded path of a "file" URL on this machine; absent for any other URL and for a path holding a NUL.
  [[nodiscard]] std::optional<std::string> filePath() const;

  bool operator==(const Url&) const = default;

 private:
  explicit Url(std::string text) : m_text(std::move(text)) {}
  std::string m_text;
};

/// `text` with its percent escapes decoded; absent when one is malformed.
[[nodiscard]] std::optional<std::string> removingPercentEscapes(std::string_view text);

/// `text` with every byte outside RFC 3986's unreserved characters, and outside `alsoKept`, escaped.
[[nodiscard]] std::string addingPercentEscapes(std::string_view text, std::string_view alsoKept = {});

}  // namespace foundation
