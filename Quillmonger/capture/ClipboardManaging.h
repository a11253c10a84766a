#pragma once

#include <memory>

#include "Foundation/Stream.h"
#include "Quillmonger/capture/ClipboardItem.h"

namespace quillmonger {

/// What the rest of the program sees of the clipboard monitor. Main thread.
class ClipboardManaging {
 public:
  using Record = std::shared_ptr<ClipboardItem>;

  ClipboardManaging() = default;
  ClipboardManaging(const ClipboardManaging&) = delete;
  ClipboardManaging& operator=(const ClipboardManaging&) = delete;
  virtual ~ClipboardManaging() = default;

  /// A new record to show and store. Its receivers defer their work to the main queue.
  virtual foundation::Stream<Record>& newItemPublisher() = 0;
  /// An older stored record that the next new record replaces.
  virtual foundation::Stream<Record>& duplicateItemPublisher() = 0;

  /// Starts watching the pasteboard. A second call stops the process.
  virtual void startListening() = 0;

  enum class RemoveFormatting : bool { no, yes };
  /// Makes the item the pasteboard's content: with all its types, or with its plain text alone if it has one.
  virtual void writeToPasteboard(const ClipboardItem& item, RemoveFormatting removeFormatting) = 0;

  /// Gets the program's windows out of the way and presses the paste keys in the application that comes to the front.
  virtual void pasteIntoFrontmostApplication() = 0;
};

}  // namespace quillmonger
