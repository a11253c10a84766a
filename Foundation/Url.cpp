#include "Foundation/Url.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <charconv>

namespace foundation {

namespace {

constexpr bool isLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
constexpr bool isDigit(char c) { return c >= '0' && c <= '9'; }
constexpr bool isUnreserved(char c) {
  return isLetter(c) || isDigit(c) || c == '-' || c == '.' || c == '_' || c == '~';
}
constexpr bool isHexDigit(char c) { return isDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F'); }

bool isEscape(std::string_view text, std::size_t at) {
  return at + 2 < text.size() && isHexDigit(text[at + 1]) && isHexDigit(text[at + 2]);
}

struct Parts {
  std::optional<std::string_view> scheme;
  std::optional<std::string_view> authority;
  std::string_view path;
};

Parts split(std::string_view text) {
  Parts parts;
  const std::size_t colon = text.find_first_of(":/?#");
  if (colon != std::string_view::npos && text[colon] == ':' && colon > 0) {
    parts.scheme = text.substr(0, colon);
    text.remove_prefix(colon + 1);
  }
  text = text.substr(0, text.find_first_of("?#"));
  if (text.starts_with("//")) {
    text.remove_prefix(2);
    const std::size_t slash = text.find('/');
    parts.authority = text.substr(0, slash);
    text = slash == std::string_view::npos ? std::string_view() : text.substr(slash);
  }
  parts.path = text;
  return parts;
}

std::string lowerCase(std::string_view text) {
  std::string lower(text);
  std::ranges::transform(lower, lower.begin(),
                         [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
  return lower;
}

bool isThisMachine(std::string_view host) {
  if (host.empty() || lowerCase(host) == "localhost") return true;
  std::array<char, 256> name{};
  return gethostname(name.data(), name.size() - 1) == 0 && host == name.data();
}

}  // namespace

std::optional<Url> Url::parse(std::string_view text) {
  constexpr std::string_view reserved = ":/?#[]@!$&'()*+,;=";
  if (text.empty()) return std::nullopt;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool isKept = isUnreserved(text[i]) || reserved.find(text[i]) != std::string_view::npos;
    if (!isKept && !(text[i] == '%' && isEscape(text, i))) return std::nullopt;
  }
  const auto scheme = split(text).scheme;
  if (scheme && (!isLetter(scheme->front()) || !std::ranges::all_of(*scheme, [](char c) {
        return isLetter(c) || isDigit(c) || c == '+' || c == '-' || c == '.';
      }))) {
    return std::nullopt;
  }
  return Url(std::string(text));
}

Url Url::fromFilePath(std::string_view path) { return Url("file://" + addingPercentEscapes(path, "/")); }

std::optional<std::string> Url::scheme() const {
  const auto scheme = split(m_text).scheme;
  return scheme ? std::optional(lowerCase(*scheme)) : std::nullopt;
}

std::optional<std::string> Url::host() const {
  auto authority = split(m_text).authority;
  if (!authority) return std::nullopt;
  if (const auto at = authority->rfind('@'); at != std::string_view::npos) authority->remove_prefix(at + 1);
  const auto bracket = authority->starts_with('[') ? authority->find(']') : std::string_view::npos;
  const auto colon = authority->find(':', bracket == std::string_view::npos ? 0 : bracket);
  const auto host = authority->substr(0, colon);
  return host.empty() ? std::nullopt : std::optional(std::string(host));
}

std::optional<std::string> Url::filePath() const {
  if (scheme() != "file" || !isThisMachine(host().value_or(""))) return std::nullopt;
  auto path = removingPercentEscapes(split(m_text).path);
  if (!path || !path->starts_with('/') || path->find('\0') != std::string::npos) return std::nullopt;
  return path;
}

std::optional<std::string> removingPercentEscapes(std::string_view text) {
  std::string plain;
  plain.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '%') {
      plain += text[i];
      continue;
    }
    if (!isEscape(text, i)) return std::nullopt;
    unsigned value = 0;
    std::from_chars(text.data() + i + 1, text.data() + i + 3, value, 16);
    plain += static_cast<char>(value);
    i += 2;
  }
  return plain;
}

std::string addingPercentEscapes(std::string_view text, std::string_view alsoKept) {
  constexpr std::string_view hex = "0123456789ABCDEF";
  std::string escaped;
  escaped.reserve(text.size());
  for (const char c : text) {
    if (isUnreserved(c) || alsoKept.find(c) != std::string_view::npos) {
      escaped += c;
      continue;
    }
    const auto byte = static_cast<unsigned char>(c);
    escaped += '%';
    escaped += hex[byte >> 4];
    escaped += hex[byte & 0x0F];
  }
  return escaped;
}

}  // namespace foundation
