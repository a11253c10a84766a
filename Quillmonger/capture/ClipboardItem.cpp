#include "Quillmonger/capture/ClipboardItem.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <utility>

#include "Foundation/Fatal.h"
#include "Foundation/Output.h"
#include "Quillmonger/capture/PasteboardTypes.h"

namespace quillmonger {

namespace {

// Adding up pastes for centuries must not be undefined.
std::int64_t saturatingSum(std::int64_t a, std::int64_t b) {
  using Limits = std::numeric_limits<std::int64_t>;
  if (b > 0 && a > Limits::max() - b) return Limits::max();
  if (b < 0 && a < Limits::min() - b) return Limits::min();
  return a + b;
}

}  // namespace

ClipboardItem::ClipboardItem(Payload data, std::optional<std::string> sourceAppBundleIdentifier,
                             std::optional<foundation::Url> sourceAppBundleURL, foundation::Date creationDate)
    : m_data(std::move(data)),
      m_attributes{foundation::Uuid::random(),    payloadDigest(m_data), std::move(sourceAppBundleIdentifier),
                   std::move(sourceAppBundleURL), creationDate,          0} {}

ClipboardItem::ClipboardItem(Payload data, Attributes attributes)
    : m_data(std::move(data)), m_attributes(std::move(attributes)) {}

ClipboardItem::~ClipboardItem() { foundation::printLine("ClipboardItem: deinit ", persistentIdentifier()); }

void ClipboardItem::setTimesPasted(std::int64_t timesPasted) {
  m_attributes.timesPasted = timesPasted;
  if (m_store != nullptr) m_store->recordChanged(*this);
  if (m_changes) m_changes->send({});
}

std::optional<foundation::Data> ClipboardItem::data(std::string_view type) const {
  const auto found = m_data.find(type);
  return found == m_data.end() ? std::nullopt : found->second;
}

std::optional<foundation::Data> ClipboardItem::image() const {
  if (isExcelTable()) return std::nullopt;
  for (const std::string_view type : imageTypesBestFirst) {
    if (auto bytes = data(type)) return bytes;
  }
  return std::nullopt;
}

std::optional<std::int64_t> ClipboardItem::modifiedChangeCount() const {
  const auto value = data(pasteboardtype::modified);
  if (!value || value->size() > foundation::Data::residentLimit) return std::nullopt;
  const auto text = value->bytes();
  const char* start = text->data();
  const char* const end = start + text->size();
  if (end - start > 1 && *start == '+' && start[1] != '-') ++start;
  std::int64_t count = 0;
  const auto [stop, error] = std::from_chars(start, end, count);
  return error == std::errc() && stop == end ? std::optional(count) : std::nullopt;
}

std::int64_t ClipboardItem::dataSize() const {
  using namespace pasteboardtype;
  constexpr std::array order = {imageTypesBestFirst[0],  imageTypesBestFirst[1], imageTypesBestFirst[2],
                                NSPasteboardTypeFileURL, utf16ExternalPlainText, utf8PlainText};
  for (const std::string_view type : order) {
    if (const auto bytes = data(type)) return static_cast<std::int64_t>(bytes->size());
  }
  return 0;
}

bool ClipboardItem::isExcelTable() const {
  return m_attributes.sourceAppBundleIdentifier == "com.microsoft.Excel" &&
         data(pasteboardtype::NSPasteboardTypeString).has_value();
}

void ClipboardItem::merge(const ClipboardItem& older, IncludingData includingData) {
  if (m_store != nullptr) foundation::stopProcess("A stored record can't take over another one.");
  if (includingData == IncludingData::yes) {
    m_data = older.m_data;
    m_attributes.hashedData = older.m_attributes.hashedData;
  }
  m_attributes.timesPasted = saturatingSum(m_attributes.timesPasted, older.m_attributes.timesPasted);
  m_attributes.sourceAppBundleIdentifier = older.m_attributes.sourceAppBundleIdentifier;
  m_attributes.sourceAppBundleURL = older.m_attributes.sourceAppBundleURL;
  if (m_changes) m_changes->send({});
}

std::string ClipboardItem::description() const { return "ClipboardItem: " + persistentIdentifier(); }

foundation::Subscription ClipboardItem::onChange(std::function<void()> receiver) {
  if (!m_changes) m_changes = std::make_unique<foundation::Stream<std::monostate>>();
  return m_changes->subscribe([receiver = std::move(receiver)](std::monostate) { receiver(); });
}

void ClipboardItem::enterStore(Store& store, std::int64_t key) {
  m_store = &store;
  m_storeKey = key;
}

std::string ClipboardItem::persistentIdentifier() const {
  std::string identifier = "x-quillmonger:ClipboardItem/";
  if (m_storeKey == 0) return identifier.append("new");
  return identifier.append("p").append(std::to_string(m_storeKey));
}

}  // namespace quillmonger
