#pragma once

#include <cstdint>

namespace quillmonger {

/// Presses the desktop's paste keys in whatever application gets the focus once this program has hidden itself.
/// Main thread; returns at once.
class PasteKeyPosting {
 public:
  PasteKeyPosting() = default;
  PasteKeyPosting(const PasteKeyPosting&) = delete;
  PasteKeyPosting& operator=(const PasteKeyPosting&) = delete;
  virtual ~PasteKeyPosting() = default;

  /// Goes out when the clipboard is known to hold what was written, another window has the focus and the user holds no
  /// modifier, each waited for within a bound; a wait in vain is told on standard output, and no key is pressed then.
  ///
  /// `keyCode`: the virtual key code, by position, of the key that types "v".
  virtual void postPasteKeyEvents(std::uint16_t keyCode) = 0;
};

}  // namespace quillmonger
