#include "Quillmonger/shell/command/CommandSyntax.h"

#include <algorithm>
#include <utility>

#include "Foundation/Url.h"
#include "Quillmonger/shell/command/ArgumentReader.h"
#include "Quillmonger/shell/command/CommandForm.h"

namespace quillmonger {

namespace {

CommandResult helpText(std::string_view text) { return {0, std::string(text), {}}; }

bool isHelp(std::string_view word) { return word == "--help" || word == "-h"; }

std::ptrdiff_t length(const CommandForm& form) { return form.words[1].empty() ? 1 : 2; }

bool isNamedBy(const CommandForm& form, const CommandWords& words) {
  return std::cmp_greater_equal(words.size(), length(form)) &&
         std::equal(words.begin(), words.begin() + length(form), form.words.begin());
}

CommandResult unknown(const std::string& word) {
  std::vector<std::string_view> names{"defaults", "help"};
  for (const auto& form : commandForms())
    names.push_back(form.words[0]);
  return misuse("unknown word \"" + word + "\"." + suggestion(word, names), commandUsage());
}

std::variant<Command, CommandResult> parseDefaults(const CommandWords& words) {
  if (words.size() > 1 && isHelp(words[1])) return helpText(commandUsage());
  return misuse("\"defaults\" takes read, write or delete.", commandUsage());
}

}  // namespace

bool isUrlWord(const std::string& word) {
  const auto url = foundation::Url::parse(word);
  return url && url->scheme();
}

std::variant<Command, CommandResult> parseCommand(const CommandWords& words) {
  if (words.empty()) return Command{};
  if (std::ranges::all_of(words, isUrlWord)) {
    Command command;
    command.kind = Command::Kind::open;
    command.arguments = words;
    return command;
  }
  if (isHelp(words[0]) || words[0] == "help") return helpText(commandUsage());
  if (words[0] == "--version") return CommandResult{0, "quillmonger " QUILLMONGER_VERSION "\n", {}};
  for (const auto& form : commandForms()) {
    if (isNamedBy(form, words)) return ArgumentReader(form).read({words.begin() + length(form), words.end()});
  }
  return words[0] == "defaults" ? parseDefaults(words) : unknown(words[0]);
}

}  // namespace quillmonger
