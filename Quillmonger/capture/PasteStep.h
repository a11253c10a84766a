#pragma once

namespace quillmonger {

/// What follows when an item has been put on the pasteboard to be pasted. Main thread.
class PasteStep {
 public:
  PasteStep() = default;
  PasteStep(const PasteStep&) = delete;
  PasteStep& operator=(const PasteStep&) = delete;
  virtual ~PasteStep() = default;

  /// Gets the program's windows out of the way and presses the paste keys in the application that comes to the front.
  /// Posts "PasteSucceeded", about `sender`, once the keys are on their way, or at once when the user pastes by hand.
  virtual void pasteIntoFrontmostApplication(const void* sender) = 0;
};

}  // namespace quillmonger
