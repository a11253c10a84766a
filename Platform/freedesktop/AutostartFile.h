#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>

#include "Foundation/Result.h"

// As GLib declares it. NOLINTNEXTLINE(bugprone-reserved-identifier)
typedef struct _GKeyFile GKeyFile;

namespace platform {

/// The text of an autostart entry. Keeps everything in it that it is not told to change. Any thread.
class AutostartFile final {
 public:
  /// An entry that starts `program` and nothing else.
  explicit AutostartFile(const std::filesystem::path& program);
  /// What lies at `path`; absent when that can't be read as an entry.
  [[nodiscard]] static std::optional<AutostartFile> read(const std::filesystem::path& path);
  AutostartFile(AutostartFile&&) noexcept;
  AutostartFile(const AutostartFile&) = delete;
  AutostartFile& operator=(const AutostartFile&) = delete;
  AutostartFile& operator=(AutostartFile&&) = delete;
  ~AutostartFile();

  /// Whether the present desktop (XDG_CURRENT_DESKTOP) starts what it names.
  [[nodiscard]] bool isEnabled() const;
  /// Removes the marks that keep the present desktop from starting it.
  void enable();
  void hide();
  /// Has it start `program`, unless it has a command of the user's own that can be run.
  void renewCommand(const std::filesystem::path& program);

  [[nodiscard]] std::string text() const;
  /// The file is there whole, or as it was.
  [[nodiscard]] foundation::Outcome write(const std::filesystem::path& path) const;

 private:
  struct Free {
    void operator()(GKeyFile* file) const;
  };

  explicit AutostartFile(std::unique_ptr<GKeyFile, Free> file);

  std::unique_ptr<GKeyFile, Free> m_file;
};

}  // namespace platform
