#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "Foundation/Uuid.h"
#include "Quillmonger/shell/command/CommandMessage.h"

namespace quillmonger {

/// How a record is named: by its number in `list`, from 1 for the newest, or by its `id`.
using RecordName = std::variant<std::size_t, foundation::Uuid>;

/// A call of the command `quillmonger` that has a meaning.
struct Command {
  enum class Kind {
    toggle,
    show,
    settings,
    about,
    open,
    quit,
    list,
    search,
    copy,
    paste,
    remove,
    clear,
    incognito,
    defaultsRead,
    defaultsWrite,
    defaultsDelete
  };

  Kind kind = Kind::show;
  /// The words that are no options. For `open`, which has no word of its own, the URLs as the desktop hands them over.
  std::vector<std::string> arguments;
  /// For `paste` and `remove`.
  std::vector<RecordName> records;
  bool isJson = false;
  /// `search --regex`.
  bool isRegularExpression = false;
  /// `paste --print`.
  bool isPrinted = false;
  /// `clear --yes`.
  bool isConfirmed = false;
  std::optional<std::size_t> limit;
  /// `copy --type`: a MIME type.
  std::optional<std::string> type;

  /// Whether `copy` takes its bytes from standard input.
  [[nodiscard]] bool readsInput() const {
    return kind == Kind::copy && (arguments.empty() || arguments.front() == "-");
  }
};

/// Whether a word is a URL with a scheme, and so no command. Any thread.
[[nodiscard]] bool isUrlWord(const std::string& word);

/// The command that `words` mean, or the answer that needs no program: a help text, the version, or the usage on
/// standard error with exit code 2. No words mean `show`. Any thread.
[[nodiscard]] std::variant<Command, CommandResult> parseCommand(const CommandWords& words);

}  // namespace quillmonger
