#include "Quillmonger/shell/client/Client.h"

#include <poll.h>

#include <utility>
#include <variant>

#include "Defaults/DefaultsFile.h"
#include "Defaults/UserDefaults.h"
#include "Quillmonger/shell/client/Connection.h"
#include "Quillmonger/shell/command/CommandLine.h"

namespace quillmonger {

namespace {

using Clock = std::chrono::steady_clock;

CommandResult failed(std::string_view why) { return {1, {}, std::string(why) + "\n"}; }

bool isStarting(const Command& command) {
  return command.kind == Command::Kind::toggle || command.kind == Command::Kind::show ||
         command.kind == Command::Kind::settings || command.kind == Command::Kind::about ||
         command.kind == Command::Kind::open;
}

bool isAboutSettings(const Command& command) {
  return command.kind == Command::Kind::defaultsRead || command.kind == Command::Kind::defaultsWrite ||
         command.kind == Command::Kind::defaultsDelete;
}

}  // namespace

CommandResult Client::run(const CommandWords& words) const {
  const auto parsed = parseCommand(words);
  if (const auto* result = std::get_if<CommandResult>(&parsed)) return *result;
  if (auto result = askRunning(words)) return *std::move(result);
  const auto& command = std::get<Command>(parsed);
  if (isAboutSettings(command)) return runOnFile(command);
  if (!isStarting(command)) return failed("Quillmonger is not running.");
  // A freshly started program has nothing that "toggle" should hide.
  return startAndAsk(command.kind == Command::Kind::toggle ? CommandWords{"show"} : words);
}

std::optional<CommandResult> Client::askRunning(const CommandWords& words) const {
  auto connection = Connection::open(m_surroundings.socket);
  if (!connection.has_value()) return std::nullopt;
  const auto reply = connection->request(commandmessage::encode(words), m_surroundings.answerPatience);
  if (!reply.has_value()) return failed("Quillmonger does not answer.");
  return commandmessage::decodeResult(*reply).value_or(failed("Quillmonger gave no proper answer."));
}

CommandResult Client::startAndAsk(const CommandWords& words) const {
  if (!m_surroundings.hasDisplay)
    return failed("Quillmonger needs a display: neither DISPLAY nor WAYLAND_DISPLAY is set.");
  if (!m_surroundings.startApplication()) return failed("Quillmonger can't be started: quillmonger-app is missing.");
  const auto deadline = Clock::now() + m_surroundings.startPatience;
  while (Clock::now() < deadline) {
    if (auto result = askRunning(words)) return *std::move(result);
    poll(nullptr, 0, 2);
  }
  return failed("Quillmonger was started but does not answer.");
}

CommandResult Client::runOnFile(const Command& command) const {
  const defaults::DefaultsFile file(m_surroundings.settingsFile);
  auto content = file.read(std::chrono::system_clock::now());
  defaults::UserDefaults store(content.values);
  defaults::Defaults settings(store);
  const auto result = CommandLine::runOnSettings(command, settings);
  if (result.exitCode != 0 || command.kind == Command::Kind::defaultsRead) return result;
  content.values = store.storedObjects();
  content.unknown.erase(command.name);
  const auto written = file.write(content);
  return written ? result : failed("The settings can't be written: " + written.error().message);
}

}  // namespace quillmonger
