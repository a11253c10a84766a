#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillmonger {

/// The words of one call of the command `quillmonger`, without the program's name.
using CommandWords = std::vector<std::string>;

/// What a command answers to its caller.
struct CommandResult {
  int exitCode = 0;
  std::string output;
  std::string errorOutput;

  bool operator==(const CommandResult&) const = default;
};

/// How words and results travel between the command and the program: each is one JSON line without a line end. Bytes
/// that are no UTF-8 arrive as U+FFFD. A line that is malformed, too deep or too large decodes to nothing. Any thread.
namespace commandmessage {

inline constexpr std::size_t requestLimit = std::size_t{1} << 20U;
inline constexpr std::size_t resultLimit = std::size_t{64} << 20U;

[[nodiscard]] std::string encode(const CommandWords& words);
[[nodiscard]] std::string encode(const CommandResult& result);
[[nodiscard]] std::optional<CommandWords> decodeWords(std::string_view line);
[[nodiscard]] std::optional<CommandResult> decodeResult(std::string_view line);

}  // namespace commandmessage

}  // namespace quillmonger
