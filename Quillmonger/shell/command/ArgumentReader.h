#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "Quillmonger/shell/command/CommandForm.h"
#include "Quillmonger/shell/command/CommandMessage.h"
#include "Quillmonger/shell/command/CommandSyntax.h"

namespace quillmonger {

/// The answer to a call that is not understood: why, and the first line of `help`.
[[nodiscard]] CommandResult misuse(const std::string& why, std::string_view help);

/// The question whether the nearest of `candidates` is meant; empty when none is near.
[[nodiscard]] std::string suggestion(std::string_view word, std::span<const std::string_view> candidates);

/// Reads what follows a command's name. Used once. Any thread.
class ArgumentReader final {
 public:
  /// `form` must outlive this object.
  explicit ArgumentReader(const CommandForm& form) : m_form(form) { m_command.kind = form.kind; }

  /// The command, its help, or what is wrong with `words`.
  [[nodiscard]] std::variant<Command, CommandResult> read(CommandWords words);

 private:
  // Each gives what is wrong; nothing when all is well.
  using Complaint = std::optional<std::string>;
  [[nodiscard]] Complaint readAll();
  [[nodiscard]] Complaint readOption(std::string_view word);
  [[nodiscard]] Complaint readValue(std::string_view name, const std::string& value);
  [[nodiscard]] Complaint check();
  [[nodiscard]] Complaint readRecords();
  [[nodiscard]] Complaint unknownOption(std::string_view name) const;

  [[nodiscard]] bool isAtEnd() const { return m_next == m_words.size(); }

  const CommandForm& m_form;
  CommandWords m_words;
  std::size_t m_next = 0;
  Command m_command;
  bool m_asksForHelp = false;
};

}  // namespace quillmonger
