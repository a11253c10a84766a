#pragma once

#include <chrono>
#include <cstddef>
#include <optional>

#include "Foundation/Data.h"
#include "Foundation/Published.h"
#include "Foundation/RunLoop.h"
#include "Foundation/Subscription.h"
#include "Quillmonger/input/LocalEventMonitoring.h"
#include "Quillmonger/preview/OculetCopying.h"
#include "Quillmonger/preview/PreviewViewModel.h"

namespace quillmonger {

/// The copy buttons of the panels on show, numbered from 0, from the top one down. Option with a digit key presses
/// them, by the key's position: the pane never has the keyboard. Main thread.
class OculetButtons final {
 public:
  /// How long a button shows that it has copied.
  static constexpr foundation::Seconds tickTime{1};

  struct Collaborators {
    PreviewViewModel& preview;
    OculetCopying& copying;
    LocalEventMonitoring& eventMonitoring;
    foundation::RunLoop& runLoop;
  };

  /// All collaborators outlive this object.
  explicit OculetButtons(const Collaborators& collaborators);

  /// Nothing happens for a number that no button has.
  void press(std::size_t button);

  /// The button that has just copied, as long as it shows that: not for another item, except for the copy itself, which
  /// comes to the top of the history.
  [[nodiscard]] foundation::Published<std::optional<std::size_t>>& copied() { return m_copied; }

 private:
  [[nodiscard]] LocalEventMonitoring::Disposition take(const KeyEvent& event);
  void showCopied(std::size_t button, const foundation::Data& text);
  void takeItem(const PreviewViewModel::Item& item);
  void clear();

  Collaborators m_with;
  foundation::Published<std::optional<std::size_t>> m_copied;
  foundation::Data m_text;  // what was copied
  foundation::Subscription m_tick;
  foundation::Subscription m_itemSubscription;
  foundation::Subscription m_eventMonitor;
};

}  // namespace quillmonger
