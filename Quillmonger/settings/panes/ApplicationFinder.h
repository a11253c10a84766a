#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "Quillmonger/settings/panes/InstalledApplications.h"

namespace quillmonger {

/// Finds applications by what the user types of them. Made on any thread; used on one at a time.
class ApplicationFinder final {
 public:
  using Application = std::shared_ptr<const InstalledApplication>;

  /// Takes the time of sorting and of working out how each is spelled without case and accents.
  explicit ApplicationFinder(std::vector<InstalledApplication> applications);
  ~ApplicationFinder();
  ApplicationFinder(const ApplicationFinder&) = delete;
  ApplicationFinder& operator=(const ApplicationFinder&) = delete;

  /// Those that hold `term` in name, generic name, keywords or identifier, whatever its case and accents; all for a
  /// blank term. Those whose name begins with it come first, then those with a word that does, then the other names,
  /// then what only another field led to; each of these groups in the alphabetical order of the user's language.
  [[nodiscard]] std::vector<Application> find(std::string_view term) const;

 private:
  class Spelling;
  struct Entry {
    Application application;
    std::string name;
    std::string rest;
  };

  std::unique_ptr<const Spelling> m_spelling;
  std::vector<Entry> m_entries;
};

}  // namespace quillmonger
