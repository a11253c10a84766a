#include "Quillmonger/capture/PasteboardContent.h"

#include <algorithm>
#include <utility>

#include "Foundation/Text.h"
#include "Quillmonger/capture/PasteboardTypes.h"

namespace quillmonger {

namespace {

bool offersText(const PasteboardItem& item) {
  return std::ranges::any_of(item.representations, [](const PasteboardItem::Representation& representation) {
    return representation.type == pasteboardtype::NSPasteboardTypeString;
  });
}

bool hasReadableText(const PasteboardItem& item) {
  const auto data = item.dataForType(pasteboardtype::NSPasteboardTypeString);
  if (!data) return false;
  const auto bytes = data->bytes();
  return bytes && foundation::isValidUtf8(*bytes) && !foundation::isBlank(*bytes);
}

Payload flatten(const std::vector<PasteboardItem>& items) {
  Payload payload;
  for (const auto& item : items) {
    if (offersText(item) && !hasReadableText(item)) continue;
    for (const auto& [type, data] : item.representations)
      payload.insert_or_assign(type, data);
  }
  return payload;
}

}  // namespace

std::vector<std::string> PasteboardItem::types() const {
  std::vector<std::string> types;
  types.reserve(representations.size());
  for (const auto& representation : representations)
    types.push_back(representation.type);
  return types;
}

std::optional<foundation::Data> PasteboardItem::dataForType(std::string_view type) const {
  const auto found = std::find_if(representations.rbegin(), representations.rend(),
                                  [type](const Representation& representation) { return representation.type == type; });
  return found == representations.rend() ? std::nullopt : found->data;
}

PasteboardContent::PasteboardContent(std::vector<PasteboardItem> items)
    : m_items(std::move(items)), m_payload(flatten(m_items)), m_digest(payloadDigest(m_payload)) {}

bool PasteboardContent::isEmpty() const {
  return std::ranges::none_of(m_payload, [](const auto& entry) { return entry.second && !entry.second->isEmpty(); });
}

}  // namespace quillmonger
