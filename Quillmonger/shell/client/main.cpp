#include <errno.h>
#include <unistd.h>

#include <array>
#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <optional>
#include <string>
#include <system_error>
#include <utility>

#include "Platform/freedesktop/XdgFolders.h"
#include "Quillmonger/shell/client/Client.h"
#include "Quillmonger/shell/client/StartedApplication.h"

namespace {

bool isSet(const char* name) {
  const char* value = std::getenv(name);
  return value != nullptr && *value != '\0';
}

bool startApplication() {
  std::error_code error;
  const auto self = std::filesystem::read_symlink("/proc/self/exe", error);
  if (error) return false;
  const auto program = quillmonger::applicationBeside(self);
  return program.has_value() && quillmonger::startDetached(*program);
}

std::optional<std::string> readInput(std::size_t limit) {
  std::string input;
  std::array<char, 65536> buffer{};
  while (input.size() <= limit) {
    const ssize_t count = read(STDIN_FILENO, buffer.data(), buffer.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return std::nullopt;
    if (count == 0) return input;
    input.append(buffer.data(), static_cast<std::size_t>(count));
  }
  return std::nullopt;
}

std::optional<bool> confirm(const std::string& question) {
  if (isatty(STDIN_FILENO) == 0 || isatty(STDERR_FILENO) == 0) return std::nullopt;
  std::cerr << question << std::flush;
  std::string answer;
  std::getline(std::cin, answer);
  return answer == "y" || answer == "Y" || answer == "yes";
}

}  // namespace

int main(int argc, char** argv) {
  const auto folders = platform::XdgFolders::present();
  quillmonger::Client::Surroundings surroundings;
  // Not in a folder that someone else could have put there: then there is nobody to ask.
  if (platform::ensurePrivateFolder(folders.runtime)) surroundings.socket = folders.runtime / "socket";
  surroundings.settingsFile = folders.config / "settings.json";
  surroundings.hasDisplay = isSet("DISPLAY") || isSet("WAYLAND_DISPLAY");
  surroundings.readInput = readInput;
  surroundings.confirm = confirm;
  surroundings.startApplication = startApplication;
  const quillmonger::Client client(std::move(surroundings));
  const auto result = client.run({argv + 1, argv + argc});
  std::cout << result.output << std::flush;
  std::cerr << result.errorOutput << std::flush;
  return result.exitCode;
}
