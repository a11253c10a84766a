#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "Quillmonger/update/Update.h"

/// How the program that asks the feed hands its answer to the one that shows it: a line for each field, the notes last.
namespace quillmonger::updateanswer {

/// Bytes of an answer.
inline constexpr std::size_t sizeLimit = std::size_t{64} << 10U;

/// What follows the name of a file that is not there as a whole.
inline constexpr std::string_view partSuffix = ".part";

[[nodiscard]] std::string encode(const std::optional<Update>& update);
/// Absent when it is no answer, or offers what can't be; an answer without an update is one.
[[nodiscard]] std::optional<std::optional<Update>> decode(std::string_view text);

/// The exit code of a program that failed so. A call that isn't understood has another one.
[[nodiscard]] int exitCode(UpdateFailure failure);
/// The reverse; `unreachable` for a code that says nothing.
[[nodiscard]] UpdateFailure failureOf(int exitCode);

}  // namespace quillmonger::updateanswer
