#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "Defaults/Defaults.h"
#include "Quillmonger/capture/ClipboardItem.h"
#include "Quillmonger/shell/command/CommandMessage.h"
#include "Quillmonger/shell/command/CommandSyntax.h"

namespace quillmonger {

/// Carries out what the command `quillmonger` hands to the running program. Main thread.
class CommandLine final {
 public:
  struct Operations {
    std::function<void()> toggle;
    std::function<void()> show;
    std::function<void()> settings;
    std::function<void()> about;
    std::function<void(const std::vector<std::string>& urls)> openURLs;
    /// Ends the program, after the answer has gone out: so in a later turn.
    std::function<void()> quit;
    /// The history, newest first.
    std::function<std::vector<std::shared_ptr<ClipboardItem>>()> records;
  };

  /// `settings` must outlive this object.
  CommandLine(Operations operations, defaults::Defaults& settings);

  [[nodiscard]] CommandResult run(const CommandWords& words);
  /// The same for one line of `commandmessage`, answered as one. A malformed line is answered with exit code 2.
  [[nodiscard]] std::string answer(const std::string& line);

  /// The commands on settings, which need no running program.
  [[nodiscard]] static CommandResult runOnSettings(const Command& command, defaults::Defaults& settings);

 private:
  [[nodiscard]] CommandResult run(const Command& command);

  Operations m_operations;
  defaults::Defaults& m_settings;
};

}  // namespace quillmonger
