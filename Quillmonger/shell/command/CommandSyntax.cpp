#include "Quillmonger/shell/command/CommandSyntax.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

#include "Foundation/Url.h"

namespace quillmonger {

namespace {

using Kind = Command::Kind;

constexpr std::string_view usage =
    "usage: quillmonger [COMMAND]\n"
    "\n"
    "  toggle                        show the history, or hide it if it is showing\n"
    "  show                          show the history (also without a command)\n"
    "  settings                      show the settings\n"
    "  about                         show what Quillmonger is, and its version\n"
    "  list [--json]                 print the history, newest first\n"
    "  defaults read [NAME]          print one setting, or all\n"
    "  defaults write NAME VALUE     change a setting\n"
    "  defaults delete NAME          set a setting back to its default\n"
    "  quit                          end Quillmonger\n"
    "\n"
    "  --help                        print this text, or after a command its own\n"
    "  --version                     print the version\n";

struct Form {
  Kind kind;
  std::array<std::string_view, 2> words;
  std::size_t fewestArguments;
  std::size_t mostArguments;
  std::string_view help;
};

constexpr std::array forms{
    Form{Kind::toggle,
         {"toggle", ""},
         0,
         0,
         "usage: quillmonger toggle\n\nShows the history, or hides it if it is showing. Starts Quillmonger first if it "
         "is not running.\n"},
    Form{Kind::show,
         {"show", ""},
         0,
         0,
         "usage: quillmonger show\n\nShows the history. Starts Quillmonger first if it is not running.\n"},
    Form{Kind::settings,
         {"settings", ""},
         0,
         0,
         "usage: quillmonger settings\n\nShows the settings. Starts Quillmonger first if it is not running.\n"},
    Form{
        Kind::about,
        {"about", ""},
        0,
        0,
        "usage: quillmonger about\n\nShows what Quillmonger is, and its version. Starts Quillmonger first if it is not "
        "running.\n"},
    Form{Kind::quit, {"quit", ""}, 0, 0, "usage: quillmonger quit\n\nEnds Quillmonger.\n"},
    Form{Kind::list,
         {"list", ""},
         0,
         0,
         "usage: quillmonger list [--json]\n\nPrints one line for each item of the history, newest first: date, size, "
         "application and text. --json prints a list of objects.\n"},
    Form{Kind::defaultsRead,
         {"defaults", "read"},
         0,
         1,
         "usage: quillmonger defaults read [NAME]\n\nPrints the value of one setting, or the names and values of "
         "all.\n"},
    Form{Kind::defaultsWrite,
         {"defaults", "write"},
         2,
         2,
         "usage: quillmonger defaults write NAME VALUE\n\nChanges a setting. It takes effect at once.\n"},
    Form{Kind::defaultsDelete,
         {"defaults", "delete"},
         1,
         1,
         "usage: quillmonger defaults delete NAME\n\nSets a setting back to its default.\n"},
};

CommandResult misuse(const std::string& why) { return {2, {}, "quillmonger: " + why + "\n\n" + std::string(usage)}; }

std::size_t length(const Form& form) { return form.words[1].empty() ? 1 : 2; }

bool isNamedBy(const Form& form, const CommandWords& words) {
  return words.size() >= length(form) &&
         std::equal(words.begin(), words.begin() + static_cast<int>(length(form)), form.words.begin());
}

std::variant<Command, CommandResult> apply(const Form& form, CommandWords arguments) {
  // What follows the name of a setting is its value, whatever it looks like.
  const bool asksForHelp = !arguments.empty() && (arguments.front() == "--help" || arguments.front() == "-h");
  if (asksForHelp) return CommandResult{0, std::string(form.help), {}};
  Command command;
  command.kind = form.kind;
  if (form.kind == Kind::list) command.isJson = std::erase(arguments, "--json") > 0;
  if (arguments.size() < form.fewestArguments) return misuse("something is missing.");
  if (arguments.size() > form.mostArguments) return misuse("unknown word \"" + arguments[form.mostArguments] + "\".");
  if (!arguments.empty()) command.name = arguments[0];
  if (arguments.size() > 1) command.value = arguments[1];
  return command;
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
    command.kind = Kind::open;
    command.urls = words;
    return command;
  }
  if (words[0] == "--help" || words[0] == "-h" || words[0] == "help") return CommandResult{0, std::string(usage), {}};
  if (words[0] == "--version") return CommandResult{0, "quillmonger " QUILLMONGER_VERSION "\n", {}};
  for (const auto& form : forms) {
    if (isNamedBy(form, words)) return apply(form, {words.begin() + static_cast<int>(length(form)), words.end()});
  }
  if (words[0] == "defaults" && words.size() > 1 && words[1] == "--help") {
    return CommandResult{0, std::string(usage), {}};
  }
  if (words[0] == "defaults") return misuse("\"defaults\" takes read, write or delete.");
  return misuse("unknown word \"" + words[0] + "\".");
}

}  // namespace quillmonger
