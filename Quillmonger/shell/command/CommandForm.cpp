#include "Quillmonger/shell/command/CommandForm.h"

namespace quillmonger {

namespace {

using Kind = Command::Kind;

constexpr std::size_t anyNumber = 1000;

constexpr std::array<std::string_view, 2> listOptions{"--limit", "--json"};
constexpr std::array<std::string_view, 3> searchOptions{"--regex", "--limit", "--json"};
constexpr std::array<std::string_view, 1> copyOptions{"--type"};
constexpr std::array<std::string_view, 2> pasteOptions{"--print", "--json"};
constexpr std::array<std::string_view, 1> clearOptions{"--yes"};
constexpr std::array<std::string_view, 1> jsonOption{"--json"};

constexpr std::string_view usage =
    "usage: quillmonger [COMMAND]\n"
    "\n"
    "  toggle                        show the history, or hide it if it is showing\n"
    "  show                          show the history (also without a command)\n"
    "  settings                      show the settings\n"
    "  about                         show what Quillmonger is, and its version\n"
    "  list                          print the history, newest first\n"
    "  search TERM                   print what a term finds in the history\n"
    "  copy [TEXT]                   put a text, or standard input, on the clipboard\n"
    "  paste [RECORD]                paste a record into the application in front, or print it\n"
    "  delete RECORD...              delete records from the history\n"
    "  clear                         delete the whole history\n"
    "  incognito on|off|toggle|status\n"
    "                                stop keeping copies, or keep them again\n"
    "  defaults read [NAME]          print one setting, or all\n"
    "  defaults write NAME VALUE     change a setting\n"
    "  defaults delete NAME          set a setting back to its default\n"
    "  quit                          end Quillmonger\n"
    "\n"
    "  --help                        print this text, or after a command its own\n"
    "  --version                     print the version\n"
    "\n"
    "A RECORD is its number in \"list\", 1 for the newest, or its id.\n"
    "The exit code is 0, 1 for a failure, or 2 for a call that is not understood.\n";

constexpr std::array forms{
    CommandForm{Kind::toggle,
                {"toggle", ""},
                0,
                0,
                {},
                "usage: quillmonger toggle\n\n"
                "Shows the history, or hides it if it is showing. Starts Quillmonger first if it is not running.\n"},
    CommandForm{Kind::show,
                {"show", ""},
                0,
                0,
                {},
                "usage: quillmonger show\n\n"
                "Shows the history. Starts Quillmonger first if it is not running.\n"},
    CommandForm{Kind::settings,
                {"settings", ""},
                0,
                0,
                {},
                "usage: quillmonger settings\n\n"
                "Shows the settings. Starts Quillmonger first if it is not running.\n"},
    CommandForm{Kind::about,
                {"about", ""},
                0,
                0,
                {},
                "usage: quillmonger about\n\n"
                "Shows what Quillmonger is, and its version. Starts Quillmonger first if it is not running.\n"},
    CommandForm{Kind::list,
                {"list", ""},
                0,
                0,
                listOptions,
                "usage: quillmonger list [--limit N] [--json]\n\n"
                "Prints one line for each record, newest first: number, date, size in bytes, application and text.\n\n"
                "  --limit N   print the N newest records alone\n"
                "  --json      print a list of objects\n"},
    CommandForm{Kind::search,
                {"search", ""},
                1,
                1,
                searchOptions,
                "usage: quillmonger search [--regex] [--limit N] [--json] TERM\n\n"
                "Prints the records whose text or application has the term, whatever its case, as \"list\" does.\n"
                "To find nothing is no failure.\n\n"
                "  --regex     take the term as a regular expression\n"
                "  --limit N   print the N best records alone\n"
                "  --json      print a list of objects\n"},
    CommandForm{Kind::copy,
                {"copy", ""},
                0,
                1,
                copyOptions,
                "usage: quillmonger copy [--type MIME] [TEXT | -]\n\n"
                "Puts TEXT on the clipboard, or standard input without one. Starts Quillmonger first if it is not "
                "running.\n\n"
                "  --type MIME   what the bytes are, such as text/html or image/png (default: text/plain)\n"},
    CommandForm{Kind::paste,
                {"paste", ""},
                0,
                1,
                pasteOptions,
                "usage: quillmonger paste [RECORD]\n"
                "       quillmonger paste --print [--json] [RECORD]\n\n"
                "Pastes a record, the newest without a number, into the application in front.\n\n"
                "  --print   print its text instead, whole and as it is\n"
                "  --json    print it as an object\n"},
    CommandForm{Kind::remove,
                {"delete", ""},
                1,
                anyNumber,
                {},
                "usage: quillmonger delete RECORD...\n\n"
                "Deletes records from the history, all of those that are named or, if one is missing, none.\n"},
    CommandForm{Kind::clear,
                {"clear", ""},
                0,
                0,
                clearOptions,
                "usage: quillmonger clear [--yes]\n\n"
                "Deletes every record of the history. Asks first in a terminal.\n\n"
                "  --yes   don't ask; needed outside a terminal\n"},
    CommandForm{Kind::incognito,
                {"incognito", ""},
                1,
                1,
                jsonOption,
                "usage: quillmonger incognito on|off|toggle\n"
                "       quillmonger incognito [--json] status\n\n"
                "While it is on, copies are not kept. \"status\" prints \"on\" or \"off\".\n\n"
                "  --json   print the status as an object\n"},
    CommandForm{Kind::defaultsRead,
                {"defaults", "read"},
                0,
                1,
                jsonOption,
                "usage: quillmonger defaults read [--json] [NAME]\n\n"
                "Prints the value of one setting, or the names and values of all.\n\n"
                "  --json   print the value, or an object of all\n"},
    CommandForm{Kind::defaultsWrite,
                {"defaults", "write"},
                2,
                2,
                {},
                "usage: quillmonger defaults write NAME VALUE\n\nChanges a setting. It takes effect at once.\n"},
    CommandForm{Kind::defaultsDelete,
                {"defaults", "delete"},
                1,
                1,
                {},
                "usage: quillmonger defaults delete NAME\n\nSets a setting back to its default.\n"},
    CommandForm{Kind::quit, {"quit", ""}, 0, 0, {}, "usage: quillmonger quit\n\nEnds Quillmonger.\n"},
};

}  // namespace

std::span<const CommandForm> commandForms() { return forms; }
std::string_view commandUsage() { return usage; }

}  // namespace quillmonger
