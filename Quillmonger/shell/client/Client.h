#pragma once

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "Quillmonger/shell/command/CommandMessage.h"
#include "Quillmonger/shell/command/CommandSyntax.h"

namespace quillmonger {

/// The command `quillmonger`: hands its words to the running program, starts it when it must, and works on the settings
/// file itself when nothing runs. Blocks, within bounds.
class Client final {
 public:
  struct Surroundings {
    std::filesystem::path socket;
    std::filesystem::path settingsFile;
    bool hasDisplay = false;
    /// What stands on standard input; absent when it is more than `limit` bytes or can't be read.
    std::function<std::optional<std::string>(std::size_t limit)> readInput;
    /// Asks the user; absent when there is nobody to ask.
    std::function<std::optional<bool>(const std::string& question)> confirm;
    /// Starts the program apart from this one; false when it can't be found or started.
    std::function<bool()> startApplication;
    std::chrono::milliseconds startPatience{5000};
    std::chrono::milliseconds answerPatience{15000};
  };

  explicit Client(Surroundings surroundings) : m_surroundings(std::move(surroundings)) {}

  [[nodiscard]] CommandResult run(const CommandWords& words) const;

 private:
  [[nodiscard]] CommandResult hand(const Command& command, CommandRequest request) const;
  [[nodiscard]] CommandResult handInput(const Command& command, const CommandWords& words) const;
  [[nodiscard]] CommandResult handConfirmed(const Command& command) const;
  [[nodiscard]] std::optional<CommandResult> askRunning(const CommandRequest& request) const;
  [[nodiscard]] CommandResult startAndAsk(const CommandRequest& request) const;
  [[nodiscard]] CommandResult runOnFile(const Command& command) const;

  Surroundings m_surroundings;
};

}  // namespace quillmonger
