#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "KeyboardShortcuts/SymbolicHotKeys.h"
#include "Platform/desktopshortcuts/Accelerator.h"
#include "Platform/freedesktop/XdgFolders.h"
#include "Sauce/InputSourceService.h"

namespace platform {

/// The chords that the running desktop's settings name: those of its window manager, of its own keys, and what the user
/// added there. XDG_CURRENT_DESKTOP says which desktop that is. Everything is read when it is asked for. A chord that
/// is switched off is left out; one that this keyboard can't type has no code. Main thread.
class DesktopShortcuts final : public keyboardshortcuts::SymbolicHotKeys {
 public:
  /// `configFolders`: where programs keep their settings, the user's own folder first. `inputSources` outlives this
  /// object.
  DesktopShortcuts(const sauce::InputSourceService& inputSources, std::vector<std::filesystem::path> configFolders,
                   const XdgFolders::Environment& environment);

  /// Absent when nothing is known of the desktop's settings.
  [[nodiscard]] std::optional<std::vector<Entry>> copySymbolicHotKeys() const override;

 private:
  using Accelerators = std::optional<std::vector<Accelerator>>;

  [[nodiscard]] Accelerators acceleratorsOf(const std::string& desktop) const;
  [[nodiscard]] Accelerators inXfce() const;
  [[nodiscard]] Accelerators inPlasma() const;
  [[nodiscard]] Accelerators inOpenbox(const char* file) const;
  /// The contents of the files of this name, the user's own first.
  [[nodiscard]] std::vector<std::string> read(const char* file) const;

  const sauce::InputSourceService& m_inputSources;
  std::vector<std::filesystem::path> m_configFolders;
  std::vector<std::string> m_desktops;
};

}  // namespace platform
