#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "Foundation/RunLoop.h"
#include "Foundation/Stream.h"
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

  /// What holds the record, and hears of each change of its attributes.
  class Store {
   public:
    Store() = default;
    Store(const Store&) = delete;
    Store& operator=(const Store&) = delete;
    virtual void recordChanged(const ClipboardItem& record) = 0;

   protected:
    ~Store() = default;
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

  /// Tells the store, then the views.
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
  /// Takes over what survives from an older record of this content, which this record is about to replace. Stops the
  /// process for a record that is already in a store.
  void merge(const ClipboardItem& older, IncludingData includingData);

  /// By content: the same types with the same values. Nothing else plays a part.
  bool operator==(const ClipboardItem& other) const { return m_data == other.m_data; }
  /// "ClipboardItem: " and the store's name for the record.
  [[nodiscard]] std::string description() const;

  /// Called after each change of an attribute, before the call that made it returns.
  foundation::Subscription onChange(std::function<void()> receiver);

  /// For stores: `key`, from 1, names the record within `store`, which is borrowed until `leaveStore`.
  void enterStore(Store& store, std::int64_t key);
  void leaveStore() { m_store = nullptr; }
  [[nodiscard]] bool isIn(const Store& store) const { return m_store == &store; }
  /// 0 for a record that never was in a store.
  [[nodiscard]] std::int64_t storeKey() const { return m_storeKey; }

 private:
  [[nodiscard]] std::string persistentIdentifier() const;

  Payload m_data;
  Attributes m_attributes;
  std::int64_t m_storeKey = 0;
  // One pointer rather than a subscription, and a stream made when somebody listens: records are held by the thousand.
  Store* m_store = nullptr;
  std::unique_ptr<foundation::Stream<std::monostate>> m_changes;
};

}  // namespace quillmonger
