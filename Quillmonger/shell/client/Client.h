#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <optional>
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
    /// Starts the program apart from this one; false when it can't be found or started.
    std::function<bool()> startApplication;
    std::chrono::milliseconds startPatience{5000};
    std::chrono::milliseconds answerPatience{15000};
  };

  explicit Client(Surroundings surroundings) : m_surroundings(std::move(surroundings)) {}

  [[nodiscard]] CommandResult run(const CommandWords& words) const;

 private:
  [[nodiscard]] std::optional<CommandResult> askRunning(const CommandWords& words) const;
  [[nodiscard]] CommandResult startAndAsk(const CommandWords& words) const;
  [[nodiscard]] CommandResult runOnFile(const Command& command) const;

  Surroundings m_surroundings;
};

}  // namespace quillmonger
