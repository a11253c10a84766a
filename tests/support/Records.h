#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "Quillmonger/capture/ClipboardItem.h"
#include "Quillmonger/capture/PasteboardTypes.h"
#include "tests/support/VirtualRunLoop.h"

namespace testsupport {

/// What `makeRecord` leaves to the test to say.
struct RecordSource {
  std::optional<std::string> identifier{};
  std::optional<foundation::Url> url{};
};

/// A record of one type, made `age` after the start of a `VirtualRunLoop`.
inline std::shared_ptr<quillmonger::ClipboardItem> makeRecord(
    std::string bytes, foundation::Seconds age = {},
    std::string_view type = quillmonger::pasteboardtype::NSPasteboardTypeString, RecordSource source = {}) {
  quillmonger::Payload payload;
  payload.emplace(type, foundation::Data(std::move(bytes)));
  return std::make_shared<quillmonger::ClipboardItem>(
      std::move(payload), std::move(source.identifier), std::move(source.url),
      VirtualRunLoop::startDate() + std::chrono::duration_cast<foundation::Date::duration>(age));
}

}  // namespace testsupport
