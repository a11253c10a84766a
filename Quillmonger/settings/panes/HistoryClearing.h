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
    /// What confirming the question runs.
    std::function<void()> deleteAllItems;
    /// Whom "HistoryCleared" is told of then.
    const void* root;
  };

  /// All collaborators outlive this object.
  explicit HistoryClearing(Collaborators collaborators);

  /// Asks, and returns.
  void ask();

 private:
  void clear();

  Collaborators m_with;
  std::shared_ptr<const bool> m_isAlive = std::make_shared<const bool>(true);
};

}  // namespace quillmonger
