#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "Defaults/Defaults.h"
#include "Foundation/Result.h"

namespace quillmonger {

/// The settings by name and as text, for the command line. Threads as in `defaults::UserDefaults`.
class SettingsText final {
 public:
  /// `settings` must outlive this object.
  explicit SettingsText(defaults::Defaults& settings) : m_settings(settings) {}

  /// The names of all keys, in the order of the table.
  [[nodiscard]] static std::vector<std::string> names();

  /// "true" or "false", a number, a bare string, or a JSON list of strings; for a colour scheme "system", "light" or
  /// "dark". An unknown name is an error.
  foundation::Result<std::string> read(std::string_view name) const;
  /// Takes what `read` gives. An unknown name, and a text that is no value of the key's type, are errors that change
  /// nothing.
  foundation::Outcome write(std::string_view name, std::string_view text);
  /// So that the key reads as its default again. An unknown name is an error.
  foundation::Outcome remove(std::string_view name);

 private:
  defaults::Defaults& m_settings;
};

}  // namespace quillmonger
