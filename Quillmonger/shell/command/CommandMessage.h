#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillmonger {

/// The words of one call of the command `quillmonger`, without the program's name.
using CommandWords = std::vector<std::string>;

/// What the command hands to the program.
struct CommandRequest {
  CommandWords words;
  /// What `copy` read from standard input: any bytes.
  std::string input;

  bool operator==(const CommandRequest&) const = default;
};

/// What a command answers to its caller.
struct CommandResult {
  int exitCode = 0;
  std::string output;
  std::string errorOutput;

  bool operator==(const CommandResult&) const = default;
};

/// The answer to a call that fails, with exit code 1.
[[nodiscard]] inline CommandResult failure(const std::string& why) { return {1, {}, "quillmonger: " + why + "\n"}; }

/// How requests and results travel between the command and the program. A request is one JSON line without its end, in
/// which words that are no UTF-8 arrive as U+FFFD. A result is a line with the exit code and the sizes of output and
/// error output, and then both, as they are: a long list is long enough once. What is malformed, too deep or too large
/// decodes to nothing. Any thread.
namespace commandmessage {

/// In bytes: of `CommandRequest::input`, of a request, which has it in Base64, and of a result.
inline constexpr std::size_t inputLimit = std::size_t{8} << 20U;
inline constexpr std::size_t requestLimit = std::size_t{12} << 20U;
inline constexpr std::size_t resultLimit = std::size_t{64} << 20U;

[[nodiscard]] std::string encode(const CommandRequest& request);
[[nodiscard]] std::string encode(const CommandResult& result);
[[nodiscard]] std::optional<CommandRequest> decodeRequest(std::string_view line);
[[nodiscard]] std::optional<CommandResult> decodeResult(std::string_view text);

}  // namespace commandmessage

}  // namespace quillmonger
