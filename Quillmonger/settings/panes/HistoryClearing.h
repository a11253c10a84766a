#pragma once

#include <functional>
#include <memory>

#include "Foundation/AlertSheet.h"
#include "Foundation/NotificationCenter.h"
#include "Foundation/TextLookup.h"

namespace quillmonger {

/// Clears the whole history, after a question. Main thread.
class HistoryClearing final {
 public:
  struct Collaborators {
    foundation::AlertSheet& alert;
    foundation::TextLookup texts;
    foundation::NotificationCenter& notificationCenter;
  };

  /// All collaborators outlive this object.
  explicit HistoryClearing(Collaborators collaborators);

  /// `deleteAllItems` is what confirming the question runs; "HistoryCleared" is told of `root` then. Both are there
  /// whenever the question is answered.
  void setHistory(std::function<void()> deleteAllItems, const void* root);
  /// Asks, and returns.
  void ask();

 private:
  void clear();

  Collaborators m_with;
  std::function<void()> m_deleteAllItems;
  const void* m_root = nullptr;
  std::shared_ptr<const bool> m_isAlive = std::make_shared<const bool>(true);
};

}  // namespace quillmonger
