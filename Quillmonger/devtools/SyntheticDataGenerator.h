#pragma once

#include <cstdint>
#include <functional>

#include "Foundation/RunLoop.h"
#include "Foundation/Subscription.h"
#include "Quillmonger/capture/Pasteboard.h"

namespace quillmonger {

/// Fills the clipboard with made-up content, so that a developer need not copy by hand. Nothing in the running program
/// makes one. Main thread.
class SyntheticDataGenerator final {
 public:
  /// Gives 64 bits, each as likely as not.
  using RandomSource = std::function<std::uint64_t()>;
  using EntryPoint = void (SyntheticDataGenerator::*)();

  /// `pasteboard` outlives this object. Counts from `first` on.
  explicit SyntheticDataGenerator(Pasteboard& pasteboard, RandomSource random = systemRandom, std::int64_t first = 0);

  /// Writes the next number. That after the largest one stops the process.
  void writeSequential();
  /// Writes a random colour: "rgb(17, 204, 3)".
  void writeToClipboard();

  /// Calls `entryPoint` `count` times, each `interval` after the one before, and `done` an interval after the last.
  /// Ends what it was asked for before. `runLoop` outlives this object.
  void repeat(foundation::RunLoop& runLoop, EntryPoint entryPoint, foundation::Seconds interval, std::int64_t count,
              std::function<void()> done);

 private:
  static std::uint64_t systemRandom();
  void write(const std::string& text);

  Pasteboard& m_pasteboard;
  RandomSource m_random;
  foundation::Subscription m_timer;
  std::int64_t m_n;
};

}  // namespace quillmonger
