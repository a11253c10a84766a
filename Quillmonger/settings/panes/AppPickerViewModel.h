#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "Foundation/BackgroundQueue.h"
#include "Foundation/Published.h"
#include "Foundation/RunLoop.h"
#include "Quillmonger/settings/panes/AppPicker.h"
#include "Quillmonger/settings/panes/ApplicationFinder.h"
#include "Quillmonger/settings/panes/InstalledApplications.h"

namespace quillmonger {

/// The choice of one installed application, from its first to its last moment. Main thread.
class AppPickerViewModel final {
 public:
  using Application = ApplicationFinder::Application;
  struct Collaborators {
    const InstalledApplications& installedApplications;
    foundation::BackgroundQueue& backgroundQueue;
    foundation::RunLoop& runLoop;
  };

  /// Begins to read the installed applications beside the main thread. All collaborators outlive this object and the
  /// work that it gave to the queue. `completion` is called from within `choose` or `cancel`, once.
  AppPickerViewModel(const Collaborators& collaborators, AppPicker::Completion completion);
  AppPickerViewModel(const AppPickerViewModel&) = delete;
  AppPickerViewModel& operator=(const AppPickerViewModel&) = delete;
  ~AppPickerViewModel() = default;

  /// Whether the applications are still being read.
  [[nodiscard]] foundation::Published<bool>& isLoading() { return m_isLoading; }
  /// What is found for the search term.
  [[nodiscard]] foundation::Published<std::vector<Application>>& applications() { return m_applications; }
  /// The chosen row, from 0; the first one after each search. Absent while there are no rows.
  [[nodiscard]] foundation::Published<std::optional<std::size_t>>& selectedRow() { return m_selectedRow; }

  void setSearchTerm(std::string term);
  void select(std::size_t row);
  /// Towards the end for a positive count, no further than to the first and the last row.
  void moveSelection(int rows);

  /// Ends with the selected application. Nothing happens while there is none.
  void choose();
  /// Ends without one.
  void cancel();

 private:
  void load(const Collaborators& collaborators);
  void search();
  void end(std::optional<foundation::Url> url);

  AppPicker::Completion m_completion;
  std::string m_searchTerm;
  std::shared_ptr<const ApplicationFinder> m_finder;
  foundation::Published<bool> m_isLoading{true};
  foundation::Published<std::vector<Application>> m_applications;
  foundation::Published<std::optional<std::size_t>> m_selectedRow;
  std::shared_ptr<const bool> m_isAlive = std::make_shared<const bool>(true);
};

}  // namespace quillmonger
