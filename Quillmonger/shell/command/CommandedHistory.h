#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "Quillmonger/capture/ClipboardItem.h"

namespace quillmonger {

/// What the command line asks of the history. Main thread; nothing here waits.
class CommandedHistory {
 public:
  using Record = std::shared_ptr<ClipboardItem>;
  using Records = std::vector<Record>;
  enum class Term : bool { text, regularExpression };

  CommandedHistory() = default;
  CommandedHistory(const CommandedHistory&) = delete;
  CommandedHistory& operator=(const CommandedHistory&) = delete;
  virtual ~CommandedHistory() = default;

  /// All records, newest first.
  [[nodiscard]] virtual Records records() const = 0;
  /// Looks for `term`, whatever its case, in texts and names of applications. `done` follows in a later turn, with what
  /// was found, best first; never once this object is gone.
  virtual void search(std::string term, Term kind, std::function<void(Records)> done) = 0;
  /// Pastes a record into the application in front, as the user would.
  virtual void paste(const Record& record) = 0;
  /// Nothing happens to one that is no longer in the history.
  virtual void remove(const Records& records) = 0;
  virtual void removeAll() = 0;
  /// Makes `bytes` the clipboard's content. `type`: a pasteboard type.
  virtual void copy(const std::string& type, std::string bytes) = 0;
};

}  // namespace quillmonger
