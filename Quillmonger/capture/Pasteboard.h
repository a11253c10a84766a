#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "Foundation/Data.h"
#include "Quillmonger/capture/PasteboardContent.h"
#include "Quillmonger/capture/TypeFilter.h"

namespace quillmonger {

/// The clipboard of the desktop, as the monitor polls it and writes it. Main thread only; nothing here waits for
/// another program.
///
/// A content becomes visible here when all of it has been read, and contents that follow each other faster than the
/// monitor polls wait in line: nothing that stood on the clipboard is overtaken by what came after it.
class Pasteboard {
 public:
  Pasteboard() = default;
  Pasteboard(const Pasteboard&) = delete;
  Pasteboard& operator=(const Pasteboard&) = delete;
  virtual ~Pasteboard() = default;

  /// Makes the next waiting content the present one; nothing happens when none waits. Once at the start of each poll.
  virtual void advance() = 0;

  /// Differs for each content that becomes present, whoever put it there, this program included.
  [[nodiscard]] virtual std::int64_t changeCount() const = 0;

  /// The types of the present content, those of all its items; empty when there is none. Never absent for a content
  /// that the filter rejected, of which nothing else is known.
  [[nodiscard]] virtual std::vector<std::string> types() const = 0;

  /// The present content; null when there is none or when the filter rejected its types, since it was not read then.
  [[nodiscard]] virtual std::shared_ptr<const PasteboardContent> pasteboardItems() const = 0;

  /// Which contents are worth reading from now on. The same rule is applied once more by the monitor.
  virtual void setTypeFilter(const TypeFilter& filter) = 0;

  /// Starts a new content of this program's own. It is put on the desktop as a whole, in the next turn of the main
  /// queue, with everything that was added by then.
  virtual void clearContents() = 0;
  /// Adds or replaces one representation of the content started last.
  virtual void setString(std::string_view text, std::string_view type) = 0;
  /// The same with bytes. A type with an absent value is offered, and asking for it gives nothing.
  virtual void setData(const std::optional<foundation::Data>& data, std::string_view type) = 0;
};

}  // namespace quillmonger
