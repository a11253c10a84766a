#include "Quillmonger/shell/client/Client.h"

#include <poll.h>

#include <string>
#include <utility>
#include <variant>

#include "Defaults/DefaultsFile.h"
#include "Defaults/UserDefaults.h"
#include "Quillmonger/shell/client/Connection.h"
#include "Quillmonger/shell/command/SettingsCommands.h"

namespace quillmonger {

namespace {

using Clock = std::chrono::steady_clock;

CommandResult failed(std::string_view why) { return {1, {}, std::string(why) + "\n"}; }

bool isStarting(const Command& command) {
  using Kind = Command::Kind;
  return command.kind == Kind::toggle || command.kind == Kind::show || command.kind == Kind::settings ||
         command.kind == Kind::about || command.kind == Kind::open || command.kind == Kind::copy;
}

}  // namespace

CommandResult Client::run(const CommandWords& words) const {
  const auto parsed = parseCommand(words);
  if (const auto* result = std::get_if<CommandResult>(&parsed)) return *result;
  const auto& command = std::get<Command>(parsed);
  if (command.readsInput()) return handInput(command, words);
  if (command.kind == Command::Kind::clear && !command.isConfirmed) return handConfirmed(command);
  return hand(command, {words, {}});
}

CommandResult Client::handInput(const Command& command, const CommandWords& words) const {
  auto input = m_surroundings.readInput(commandmessage::inputLimit);
  if (input) return hand(command, {words, *std::move(input)});
  const auto limit = std::to_string(commandmessage::inputLimit >> 20U);
  return failed("Standard input can't be read, or is more than " + limit + " MiB.");
}

CommandResult Client::handConfirmed(const Command& command) const {
  const auto isSure = m_surroundings.confirm("Delete the whole history? [y/N] ");
  if (!isSure) return {2, {}, "quillmonger: \"clear\" needs \"--yes\" where nobody can be asked.\n"};
  return *isSure ? hand(command, {{"clear", "--yes"}, {}}) : failed("Nothing was deleted.");
}

CommandResult Client::hand(const Command& command, CommandRequest request) const {
  if (auto result = askRunning(request)) return *std::move(result);
  if (settingscommands::contains(command)) return runOnFile(command);
  if (!isStarting(command)) return failed("Quillmonger is not running.");
  // A freshly started program has nothing that "toggle" should hide.
  if (command.kind == Command::Kind::toggle) request.words = {"show"};
  return startAndAsk(request);
}

std::optional<CommandResult> Client::askRunning(const CommandRequest& request) const {
  auto connection = Connection::open(m_surroundings.socket);
  if (!connection.has_value()) return std::nullopt;
  const auto reply = connection->request(commandmessage::encode(request), m_surroundings.answerPatience);
  if (!reply.has_value()) return failed("Quillmonger does not answer.");
  return commandmessage::decodeResult(*reply).value_or(failed("Quillmonger gave no proper answer."));
}

CommandResult Client::startAndAsk(const CommandRequest& request) const {
  if (!m_surroundings.hasDisplay)
    return failed("Quillmonger needs a display: neither DISPLAY nor WAYLAND_DISPLAY is set.");
  if (!m_surroundings.startApplication()) return failed("Quillmonger can't be started: quillmonger-app is missing.");
  const auto deadline = Clock::now() + m_surroundings.startPatience;
  while (Clock::now() < deadline) {
    if (auto result = askRunning(request)) return *std::move(result);
    poll(nullptr, 0, 2);
  }
  return failed("Quillmonger was started but does not answer.");
}

CommandResult Client::runOnFile(const Command& command) const {
  const defaults::DefaultsFile file(m_surroundings.settingsFile);
  auto content = file.read(std::chrono::system_clock::now());
  defaults::UserDefaults store(content.values);
  defaults::Defaults settings(store);
  const auto changedName = settingscommands::changedName(command);
  const auto result = settingscommands::run(command, settings);
  if (result.exitCode != 0 || !changedName) return result;
  content.values = store.storedObjects();
  content.unknown.erase(*changedName);
  const auto written = file.write(content);
  return written ? result : failed("The settings can't be written: " + written.error().message);
}

}  // namespace quillmonger
