#pragma once

#include <functional>
#include <memory>
#include <string>

#include "Foundation/NotificationCenter.h"
#include "Foundation/RunLoop.h"
#include "Quillmonger/capture/ClipboardManaging.h"
#include "Quillmonger/history/ClipboardViewModel.h"
#include "Quillmonger/search/SearchManager.h"
#include "Quillmonger/shell/command/CommandedHistory.h"

namespace quillmonger {

/// The history that the user sees, as the command line uses it. Main thread.
class RunningHistory final : public CommandedHistory {
 public:
  /// All outlive this object.
  struct Collaborators {
    ClipboardManaging& clipboard;
    ClipboardViewModel& clipboardViewModel;
    SearchManager<ClipboardItemViewModel>& searchManager;
    foundation::RunLoop& runLoop;
    foundation::NotificationCenter& notificationCenter;
  };

  explicit RunningHistory(const Collaborators& collaborators) : m_with(collaborators) {}

  [[nodiscard]] Records records() const override;
  void search(std::string term, Term kind, std::function<void(Records)> done) override;
  void paste(const Record& record) override;
  void remove(const Records& records) override;
  void removeAll() override;
  void copy(const std::string& type, std::string bytes) override;

 private:
  [[nodiscard]] ClipboardViewModel::Item itemOf(const Record& record) const;  // null for one that has gone

  Collaborators m_with;
  std::shared_ptr<const bool> m_isAlive = std::make_shared<const bool>(true);
};

}  // namespace quillmonger
