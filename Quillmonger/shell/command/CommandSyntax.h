#pragma once

#include <string>
#include <variant>
#include <vector>

#include "Quillmonger/shell/command/CommandMessage.h"

namespace quillmonger {

/// A call of the command `quillmonger` that has a meaning.
struct Command {
  enum class Kind { toggle, show, settings, about, open, quit, list, defaultsRead, defaultsWrite, defaultsDelete };

  Kind kind = Kind::show;
  /// `list --json`.
  bool isJson = false;
  /// For the settings; empty for `defaults read` without a name, which reads all.
  std::string name;
  std::string value;
  /// For `open`, which has no word of its own: the desktop hands over URLs as they are.
  std::vector<std::string> urls;
};

/// Whether a word is a URL with a scheme, and so no command. Any thread.
[[nodiscard]] bool isUrlWord(const std::string& word);

/// The command that `words` mean, or the answer that needs no program: a help text, the version, or the usage on
/// standard error with exit code 2. No words mean `show`. Any thread.
[[nodiscard]] std::variant<Command, CommandResult> parseCommand(const CommandWords& words);

}  // namespace quillmonger
