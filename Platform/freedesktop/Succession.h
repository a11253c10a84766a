#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>

#include "Platform/freedesktop/ContentLine.h"

namespace platform {

/// Decides which of the contents that follow each other on a clipboard are handed on, and in which order: each that
/// stood for `shortestStand`, in the order in which they came, each as soon as it is complete and those before it are
/// dealt with. What stood for less was a program writing twice. One thread.
class Succession final {
 public:
  using Number = std::uint64_t;
  static constexpr std::chrono::milliseconds shortestStand{20};

  explicit Succession(std::function<void(ClipboardSnapshot)> deliver) : m_deliver(std::move(deliver)) {}

  /// A new content came, `time` milliseconds on the display server's clock, which wraps around. The one before it
  /// stands no more.
  Number begin(std::uint32_t time);
  /// The content has stood for `shortestStand`, or will have.
  void settle(Number number);
  /// All is read; absent when there is nothing to hand on. Only the first call for a content counts.
  void complete(Number number, std::optional<ClipboardSnapshot> snapshot);
  /// The content has kept newer ones waiting for long enough: it comes when it is complete, after them.
  void release(Number number);

  /// The content that came last; 0 before the first.
  [[nodiscard]] Number latest() const { return m_latest; }
  /// Whether the content is neither handed on nor dropped.
  [[nodiscard]] bool isOpen(Number number) const { return m_entries.contains(number); }

 private:
  struct Entry {
    std::uint32_t time;
    bool hasStood = false;
    bool isComplete = false;
    bool holdsBack = true;
    std::optional<ClipboardSnapshot> snapshot;
  };
  void deliverReady();

  std::function<void(ClipboardSnapshot)> m_deliver;
  std::map<Number, Entry> m_entries;
  Number m_latest = 0;
};

}  // namespace platform
