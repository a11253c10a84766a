#include "Quillmonger/shell/command/CommandLine.h"

#include <utility>
#include <variant>

#include "Quillmonger/settings/SettingsText.h"
#include "Quillmonger/shell/command/RecordList.h"

namespace quillmonger {

namespace {

CommandResult failed(const std::string& why) { return {1, {}, "quillmonger: " + why + "\n"}; }

CommandResult readSetting(const SettingsText& text, const std::string& name) {
  const auto value = text.read(name);
  return value ? CommandResult{0, value.value() + "\n", {}} : failed(value.error().message);
}

CommandResult readAllSettings(const SettingsText& text) {
  CommandResult result;
  for (const auto& name : SettingsText::names())
    result.output += name + " = " + readSetting(text, name).output;
  return result;
}

CommandResult resultOf(const foundation::Outcome& outcome) {
  return outcome ? CommandResult() : failed(outcome.error().message);
}

}  // namespace

CommandLine::CommandLine(Operations operations, defaults::Defaults& settings)
    : m_operations(std::move(operations)), m_settings(settings) {}

CommandResult CommandLine::run(const CommandWords& words) {
  const auto command = parseCommand(words);
  if (const auto* result = std::get_if<CommandResult>(&command)) return *result;
  return run(std::get<Command>(command));
}

std::string CommandLine::answer(const std::string& line) {
  const auto words = commandmessage::decodeWords(line);
  return commandmessage::encode(words.has_value() ? run(*words)
                                                  : CommandResult{2, {}, "quillmonger: malformed request\n"});
}

CommandResult CommandLine::run(const Command& command) {
  switch (command.kind) {
    case Command::Kind::toggle:
      m_operations.toggle();
      return {};
    case Command::Kind::show:
      m_operations.show();
      return {};
    case Command::Kind::settings:
      m_operations.settings();
      return {};
    case Command::Kind::about:
      m_operations.about();
      return {};
    case Command::Kind::open:
      m_operations.openURLs(command.urls);
      return {};
    case Command::Kind::quit:
      m_operations.quit();
      return {};
    case Command::Kind::list:
      return {
          0, command.isJson ? recordlist::json(m_operations.records()) : recordlist::lines(m_operations.records()), {}};
    default:
      return runOnSettings(command, m_settings);
  }
}

CommandResult CommandLine::runOnSettings(const Command& command, defaults::Defaults& settings) {
  SettingsText text(settings);
  if (command.kind == Command::Kind::defaultsWrite) return resultOf(text.write(command.name, command.value));
  if (command.kind == Command::Kind::defaultsDelete) return resultOf(text.remove(command.name));
  return command.name.empty() ? readAllSettings(text) : readSetting(text, command.name);
}

}  // namespace quillmonger
