#include "Quillmonger/update/UpdateAnswer.h"

#include <charconv>
#include <utility>

namespace quillmonger::updateanswer {

namespace {

constexpr std::string_view none = "none\n";
constexpr int firstFailureCode = 10;
constexpr std::string_view some = "update\n";

// The text up to the line's end, which is cut off with it; absent without a line end.
std::optional<std::string_view> nextLine(std::string_view& text) {
  const auto end = text.find('\n');
  if (end == std::string_view::npos) return std::nullopt;
  const auto line = text.substr(0, end);
  text.remove_prefix(end + 1);
  return line;
}

std::optional<std::uint64_t> number(std::string_view text) {
  std::uint64_t value = 0;
  const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (failure != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return value;
}

}  // namespace

std::string encode(const std::optional<Update>& update) {
  if (!update) return std::string(none);
  return std::string(some) + update->version + '\n' + update->url.absoluteString() + '\n' +
         std::to_string(update->length) + '\n' + update->sha256 + '\n' + update->notes;
}

std::optional<std::optional<Update>> decode(std::string_view text) {
  if (text == none) return std::optional<Update>();
  if (text.size() > sizeLimit || !text.starts_with(some)) return std::nullopt;
  text.remove_prefix(some.size());
  const auto version = nextLine(text);
  const auto address = nextLine(text);
  const auto length = nextLine(text);
  const auto sha256 = nextLine(text);
  if (!version || !address || !length || !sha256) return std::nullopt;
  auto url = foundation::Url::parse(*address);
  const auto bytes = number(*length);
  if (!url || !bytes) return std::nullopt;
  Update update{.version = std::string(*version),
                .notes = std::string(text),
                .url = *std::move(url),
                .length = *bytes,
                .sha256 = std::string(*sha256)};
  if (!isUsable(update)) return std::nullopt;
  return std::optional(std::move(update));
}

int exitCode(UpdateFailure failure) { return firstFailureCode + static_cast<int>(failure); }

UpdateFailure failureOf(int exitCode) {
  const bool isKnown =
      exitCode >= firstFailureCode && exitCode <= firstFailureCode + static_cast<int>(UpdateFailure::notOpened);
  return isKnown ? static_cast<UpdateFailure>(exitCode - firstFailureCode) : UpdateFailure::unreachable;
}

}  // namespace quillmonger::updateanswer
