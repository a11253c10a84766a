#include "Quillmonger/shell/command/CommandLine.h"

#include <algorithm>
#include <utility>
#include <variant>

#include "Foundation/Text.h"
#include "Quillmonger/shell/command/RecordList.h"
#include "Quillmonger/shell/command/RecordNames.h"
#include "Quillmonger/shell/command/SettingsCommands.h"

namespace quillmonger {

namespace {

using Kind = Command::Kind;

CommandResult listed(std::vector<NumberedRecord> records, const Command& command) {
  if (command.limit && *command.limit < records.size())
    records.erase(records.begin() + static_cast<std::ptrdiff_t>(*command.limit), records.end());
  return {0, command.isJson ? recordlist::json(records) : recordlist::lines(records), {}};
}

CommandResult noRecord(const RecordName& name) { return failure("There is no record " + toText(name) + "."); }

}  // namespace

CommandLine::CommandLine(Operations operations, CommandedHistory& history, defaults::Defaults& settings)
    : m_operations(std::move(operations)), m_history(history), m_settings(settings) {}

void CommandLine::answer(const std::string& line, const std::function<void(std::string)>& reply) {
  const auto done = [reply](const CommandResult& result) { reply(commandmessage::encode(result)); };
  const auto request = commandmessage::decodeRequest(line);
  if (request) {
    run(*request, done);
  } else {
    done({2, {}, "quillmonger: malformed request\n"});
  }
}

void CommandLine::run(const CommandRequest& request, const Done& done) {
  const auto parsed = parseCommand(request.words);
  if (const auto* result = std::get_if<CommandResult>(&parsed)) return done(*result);
  const auto& command = std::get<Command>(parsed);
  if (command.kind == Kind::search) return search(command, done);
  done(settingscommands::contains(command) ? settingscommands::run(command, m_settings)
                                           : runOnHistory(command, request.input));
}

void CommandLine::search(const Command& command, const Done& done) {
  const auto kind =
      command.isRegularExpression ? CommandedHistory::Term::regularExpression : CommandedHistory::Term::text;
  m_history.search(command.arguments[0], kind,
                   [&history = m_history, command, done](const CommandedHistory::Records& found) {
                     done(listed(RecordNames(history.records()).numbered(found), command));
                   });
}

CommandResult CommandLine::runOnHistory(const Command& command, const std::string& input) {
  switch (command.kind) {
    case Kind::list:
      return listed(RecordNames(m_history.records()).all(), command);
    case Kind::copy:
      return copy(command, input);
    case Kind::paste:
      return paste(command);
    case Kind::remove:
      return remove(command);
    case Kind::clear:
      if (!command.isConfirmed) return {2, {}, "quillmonger: \"clear\" needs \"--yes\".\n"};
      m_history.removeAll();
      return {};
    default:
      runOnProgram(command);
      return {};
  }
}

void CommandLine::runOnProgram(const Command& command) {
  if (command.kind == Kind::toggle) m_operations.toggle();
  if (command.kind == Kind::show) m_operations.show();
  if (command.kind == Kind::settings) m_operations.settings();
  if (command.kind == Kind::about) m_operations.about();
  if (command.kind == Kind::open) m_operations.openURLs(command.arguments);
  if (command.kind == Kind::quit) m_operations.quit();
}

CommandResult CommandLine::copy(const Command& command, const std::string& input) {
  const auto& bytes = command.readsInput() ? input : command.arguments[0];
  const auto type = m_operations.pasteboardType(command.type.value_or("text/plain"));
  if (bytes.empty()) return failure("There is nothing to copy.");
  const bool isText = !command.type || command.type->starts_with("text/");
  if (isText && !foundation::isValidUtf8(bytes)) return failure("The text is not in UTF-8.");
  m_history.copy(type, bytes);
  return {};
}

CommandResult CommandLine::paste(const Command& command) {
  const auto found = RecordNames(m_history.records()).find(command.records[0]);
  if (!found) return noRecord(command.records[0]);
  if (!command.isPrinted) {
    m_history.paste(found->record);
    return {};
  }
  if (command.isJson) return {0, recordlist::wholeJson(*found), {}};
  const auto text = recordlist::wholeText(*found->record);
  if (!text) return failure("Record " + toText(command.records[0]) + " has no text, or too much to print.");
  return {0, *text, {}};
}

CommandResult CommandLine::remove(const Command& command) {
  const RecordNames names(m_history.records());
  CommandedHistory::Records records;
  for (const auto& name : command.records) {
    const auto found = names.find(name);
    if (!found) return noRecord(name);
    records.push_back(found->record);
  }
  m_history.remove(records);
  return {};
}

}  // namespace quillmonger
