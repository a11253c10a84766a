#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

#include "Quillmonger/shell/command/CommandSyntax.h"

namespace quillmonger {

/// How one command is written, and what its help says.
struct CommandForm {
  Command::Kind kind;
  /// Its name; the second word is empty for most.
  std::array<std::string_view, 2> words;
  std::size_t fewestArguments;
  std::size_t mostArguments;
  /// Without any, every word after the name is an argument, whatever it looks like.
  std::span<const std::string_view> options;
  /// Its first line is the usage.
  std::string_view help;
};

/// All commands, in the order in which they are told. Any thread.
[[nodiscard]] std::span<const CommandForm> commandForms();
/// The help on the whole.
[[nodiscard]] std::string_view commandUsage();

}  // namespace quillmonger
