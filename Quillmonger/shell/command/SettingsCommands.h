#pragma once

#include <optional>
#include <string>

#include "Defaults/Defaults.h"
#include "Quillmonger/shell/command/CommandMessage.h"
#include "Quillmonger/shell/command/CommandSyntax.h"

namespace quillmonger {

/// The commands that are about settings alone, and so need no running program: `defaults` and `incognito`. Threads as
/// in `defaults::UserDefaults`.
namespace settingscommands {

[[nodiscard]] bool contains(const Command& command);
/// The name of the setting that such a command changes; absent when it only reads.
[[nodiscard]] std::optional<std::string> changedName(const Command& command);
[[nodiscard]] CommandResult run(const Command& command, defaults::Defaults& settings);

}  // namespace settingscommands

}  // namespace quillmonger
