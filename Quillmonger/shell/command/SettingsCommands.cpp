#include "Quillmonger/shell/command/SettingsCommands.h"

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

#include "Quillmonger/settings/SettingsKeys.h"
#include "Quillmonger/settings/SettingsText.h"

namespace quillmonger::settingscommands {

namespace {

using Json = nlohmann::ordered_json;
using Kind = Command::Kind;

CommandResult resultOf(const foundation::Outcome& outcome) {
  return outcome ? CommandResult() : failure(outcome.error().message);
}

std::string dump(const Json& json) { return json.dump(2, ' ', false, Json::error_handler_t::replace) + "\n"; }

// The texts of all types are JSON, but for bare strings.
Json jsonOf(const std::string& text) {
  Json json = Json::parse(text, nullptr, false);
  return json.is_discarded() ? Json(text) : json;
}

CommandResult readOne(const SettingsText& text, const std::string& name, bool isJson) {
  const auto value = text.read(name);
  if (!value) return failure(value.error().message);
  return {0, isJson ? dump(jsonOf(value.value())) : value.value() + "\n", {}};
}

CommandResult readAll(const SettingsText& text, bool isJson) {
  Json all = Json::object();
  std::string lines;
  for (const auto& name : SettingsText::names()) {
    const auto value = text.read(name).value();
    if (isJson) all[name] = jsonOf(value);
    lines += name + " = " + value + "\n";
  }
  return {0, isJson ? dump(all) : lines, {}};
}

CommandResult runIncognito(const Command& command, defaults::Defaults& settings) {
  const bool isOn = settings[keys::isIncognitoMode];
  const auto& word = command.arguments[0];
  if (word == "status") {
    const std::string_view status = isOn ? "on\n" : "off\n";
    return {0, command.isJson ? dump({{"isIncognitoMode", isOn}}) : std::string(status), {}};
  }
  settings.set(keys::isIncognitoMode, word == "on" || (word == "toggle" && !isOn));
  return {};
}

}  // namespace

bool contains(const Command& command) {
  return command.kind == Kind::defaultsRead || command.kind == Kind::defaultsWrite ||
         command.kind == Kind::defaultsDelete || command.kind == Kind::incognito;
}

std::optional<std::string> changedName(const Command& command) {
  if (command.kind == Kind::defaultsRead) return std::nullopt;
  if (command.kind != Kind::incognito) return command.arguments[0];
  return command.arguments[0] == "status" ? std::nullopt : std::optional(keys::isIncognitoMode.name());
}

CommandResult run(const Command& command, defaults::Defaults& settings) {
  const auto& arguments = command.arguments;
  if (command.kind == Kind::incognito) return runIncognito(command, settings);
  SettingsText text(settings);
  if (command.kind == Kind::defaultsWrite) return resultOf(text.write(arguments[0], arguments[1]));
  if (command.kind == Kind::defaultsDelete) return resultOf(text.remove(arguments[0]));
  return arguments.empty() ? readAll(text, command.isJson) : readOne(text, arguments[0], command.isJson);
}

}  // namespace quillmonger::settingscommands
