#pragma once

#include <functional>
#include <string>
#include <vector>

#include "Defaults/Defaults.h"
#include "Quillmonger/shell/command/CommandMessage.h"
#include "Quillmonger/shell/command/CommandSyntax.h"
#include "Quillmonger/shell/command/CommandedHistory.h"

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
    /// The pasteboard type that a MIME type stands for; the MIME type itself when there is none.
    std::function<std::string(const std::string& mimeType)> pasteboardType;
  };
  using Done = std::function<void(const CommandResult&)>;

  /// `history` and `settings` must outlive this object.
  CommandLine(Operations operations, CommandedHistory& history, defaults::Defaults& settings);

  /// `done` is called once, during the call or, for a search, in a later turn.
  void run(const CommandRequest& request, const Done& done);
  /// The same for one line of `commandmessage`, answered as one. A malformed line is answered with exit code 2.
  void answer(const std::string& line, const std::function<void(std::string)>& reply);

 private:
  void search(const Command& command, const Done& done);
  void runOnProgram(const Command& command);
  [[nodiscard]] CommandResult runOnHistory(const Command& command, const std::string& input);
  [[nodiscard]] CommandResult copy(const Command& command, const std::string& input);
  [[nodiscard]] CommandResult paste(const Command& command);
  [[nodiscard]] CommandResult remove(const Command& command);

  Operations m_operations;
  CommandedHistory& m_history;
  defaults::Defaults& m_settings;
};

}  // namespace quillmonger
