#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "Foundation/Published.h"
#include "Foundation/RunLoop.h"
#include "Foundation/Url.h"
#include "Foundation/Uuid.h"
#include "Quillmonger/capture/Payload.h"

namespace quillmonger {

/// One record of the history: everything that the program keeps of one copy. Shared by the store's context and the
/// history. Changed on the main thread only; a search reads `data` beside it, which is why `data` never changes once
/// the record is in the history.
class ClipboardItem final {
 public:
  /// What the store keeps of a record besides its payload.
  struct Attributes {
    foundation::Uuid id;
    std::string hashedData;
    std::optional<std::string> sourceAppBundleIdentifier;
    std::optional<foundation::Url> sourceAppBundleURL;
    foundation::Date creationDate;
    std::int64_t timesPasted = 0;
  };

  /// A new record: a random `id`, `timesPasted` 0, `hashedData` computed from `data`, which reads all of it.
  ClipboardItem(Payload data, std::optional<std::string> sourceAppBundleIdentifier,
                std::optional<foundation::Url> sourceAppBundleURL, foundation::Date creationDate);
  /// A record with its attributes as they are: one out of the store, or a new one whose digest is known.
  ClipboardItem(Payload data, Attributes attributes);
  ClipboardItem(const ClipboardItem&) = delete;
  ClipboardItem& operator=(const ClipboardItem&) = delete;
  /// Writes "ClipboardItem: deinit " and the store's name for the record to standard output.
  ~ClipboardItem();

  [[nodiscard]] const foundation::Uuid& id() const { return m_attributes.id; }
  [[nodiscard]] const Payload& data() const { return m_data; }
  [[nodiscard]] const std::string& hashedData() const { return m_attributes.hashedData; }
  [[nodiscard]] const std::optional<std::string>& sourceAppBundleIdentifier() const {
    return m_attributes.sourceAppBundleIdentifier;
  }
  [[nodiscard]] const std::optional<foundation::Url>& sourceAppBundleURL() const {
    return m_attributes.sourceAppBundleURL;
  }
  [[nodiscard]] foundation::Date creationDate() const { return m_attributes.creationDate; }
  [[nodiscard]] std::int64_t timesPasted() const { return m_attributes.timesPasted; }
  [[nodiscard]] const Attributes& attributes() const { return m_attributes; }

  /// Tells the store and the views.
  void setTimesPasted(std::int64_t timesPasted);

  /// The value of one type; absent when the type is missing or has no bytes.
  [[nodiscard]] std::optional<foundation::Data> data(std::string_view type) const;
  /// The encoded picture of the best image type with bytes; absent for a spreadsheet's table.
  [[nodiscard]] std::optional<foundation::Data> image() const;
  /// From the `modified` type; absent when it is missing or no signed decimal integer.
  [[nodiscard]] std::optional<std::int64_t> modifiedChangeCount() const;
  /// The payload size that is shown for the item, in bytes.
  [[nodiscard]] std::int64_t dataSize() const;
  /// Text copied from the spreadsheet program that also offers pictures of it: text, not a picture.
  [[nodiscard]] bool isExcelTable() const;

  enum class IncludingData : bool { no, yes };
  /// Takes over what survives from an older record of this content, which this record is about to replace.
  void merge(const ClipboardItem& older, IncludingData includingData);

  /// By content: the same types with the same values. Nothing else plays a part.
  bool operator==(const ClipboardItem& other) const { return m_data == other.m_data; }
  /// "ClipboardItem: " and the store's name for the record.
  [[nodiscard]] std::string description() const;

  /// Called after each change of an attribute, before the call that made it returns.
  foundation::Subscription onChange(std::function<void()> receiver);

 private:
  Payload m_data;
  Attributes m_attributes;
  foundation::Stream<int> m_changes;
};

}  // namespace quillmonger
