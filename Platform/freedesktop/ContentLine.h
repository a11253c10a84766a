#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "Platform/freedesktop/WindowIdentity.h"
#include "Quillmonger/capture/PasteboardContent.h"

namespace platform {

/// One content of the clipboard, complete.
struct ClipboardSnapshot {
  std::vector<std::string> types;
  /// Null for a content that was judged not worth reading, and for an emptied clipboard.
  std::shared_ptr<const quillmonger::PasteboardContent> content;
  /// The window in front when the content came; absent when there was none.
  std::optional<WindowIdentity> frontmost;
};

/// The contents that wait for the monitor, and the present one. One thread.
class ContentLine final {
 public:
  /// Bytes that may wait; beyond them the oldest waiting contents are dropped, and a line tells so.
  static constexpr std::size_t waitingLimit = std::size_t{512} << 20;

  explicit ContentLine(std::size_t limit = waitingLimit) : m_limit(limit) {}

  void push(ClipboardSnapshot snapshot);
  /// Makes the oldest waiting content the present one; nothing happens when none waits.
  void advance();

  [[nodiscard]] const ClipboardSnapshot& present() const { return m_present; }
  /// Differs for each content that becomes present.
  [[nodiscard]] std::int64_t changeCount() const { return m_changeCount; }

 private:
  std::size_t m_limit;
  std::deque<ClipboardSnapshot> m_waiting;
  std::size_t m_waitingBytes = 0;
  ClipboardSnapshot m_present;
  std::int64_t m_changeCount = 0;
};

}  // namespace platform
