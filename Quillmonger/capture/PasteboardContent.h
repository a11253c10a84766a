#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Foundation/Data.h"
#include "Quillmonger/capture/Payload.h"

namespace quillmonger {

/// One of the things that a copy consists of: one text, one of several files.
struct PasteboardItem {
  struct Representation {
    std::string type;
    /// Absent when the owner offered the type and did not give its bytes.
    std::optional<foundation::Data> data;
  };
  /// In the owner's order.
  std::vector<Representation> representations;

  [[nodiscard]] std::vector<std::string> types() const;
  /// Absent for a type that is missing or has no bytes.
  [[nodiscard]] std::optional<foundation::Data> dataForType(std::string_view type) const;
};

/// All pasteboard items of one copy, flattened and digested once by whoever makes it, so that reading it on the main
/// thread costs the same for a word and for a film. Immutable; any thread.
class PasteboardContent final {
 public:
  explicit PasteboardContent(std::vector<PasteboardItem> items);

  [[nodiscard]] const std::vector<PasteboardItem>& items() const { return m_items; }

  /// The union of the items' types; of a type that several items offer the last one's value stands, also an absent
  /// one. An item that offers text which can't be read as UTF-8, or which is blank, is left out whole.
  [[nodiscard]] const Payload& payload() const { return m_payload; }
  /// `payloadDigest` of `payload()`.
  [[nodiscard]] const std::string& digest() const { return m_digest; }
  /// Whether no value of the payload is present with at least one byte.
  [[nodiscard]] bool isEmpty() const;

 private:
  std::vector<PasteboardItem> m_items;
  Payload m_payload;
  std::string m_digest;
};

}  // namespace quillmonger
