#include "Platform/freedesktop/ServedTypes.h"

#include <algorithm>
#include <optional>

#include "Foundation/Text.h"
#include "Platform/freedesktop/PasteboardTypeTable.h"
#include "Quillmonger/capture/PasteboardTypes.h"

namespace platform {

namespace {

namespace pasteboardtype = quillmonger::pasteboardtype;
using Representation = quillmonger::PasteboardItem::Representation;
using Table = PasteboardTypeTable;

// What Latin-1 can't hold becomes "?". Ill-formed text has been replaced before, so each lead byte has its followers.
std::string latin1FromUtf8(std::string_view text) {
  std::string result;
  for (std::size_t index = 0; index < text.size(); ++index) {
    const auto lead = static_cast<unsigned char>(text[index]);
    if (lead < 0x80) {
      result.push_back(text[index]);
    } else if (lead == 0xC2 || lead == 0xC3) {
      const auto follower = static_cast<unsigned char>(text[++index]);
      result.push_back(static_cast<char>(((lead & 0x03) << 6) | (follower & 0x3F)));
    } else {
      result.push_back('?');
      index += lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : 3;
    }
  }
  return result;
}

bool isUrl(const Representation& representation) {
  return representation.type == pasteboardtype::NSPasteboardTypeFileURL ||
         representation.type == pasteboardtype::NSPasteboardTypeURL;
}

// The URLs of all items as one list, for a content that kept none.
std::optional<foundation::Data> joinedUrls(const std::vector<Representation>& representations) {
  std::string list;
  for (const Representation& representation : representations) {
    const auto url = isUrl(representation) && representation.data ? representation.data->bytes() : nullptr;
    if (url) list += *url + "\r\n";
  }
  if (list.empty()) return std::nullopt;
  return foundation::Data(std::move(list));
}

}  // namespace

ServedTypes::ServedTypes(const std::vector<quillmonger::PasteboardItem>& items) {
  std::vector<Representation> all;
  for (const auto& item : items) {
    all.insert(all.end(), item.representations.begin(), item.representations.end());
  }
  const bool hasUriList = std::ranges::count(all, Table::uriList, &Representation::type) > 0;
  for (const Representation& representation : all) {
    const Table::Entry* entry = Table::entryForType(representation.type);
    if (isUrl(representation)) {
      if (!hasUriList) add(Table::uriList, {representation.type, joinedUrls(all)});
    } else if (entry != nullptr) {
      for (const std::string_view name : entry->writingNames)
        add(name, {representation.type, representation.data});
    } else {
      add(representation.type, {representation.type, representation.data});
    }
  }
}

void ServedTypes::add(std::string_view name, const Source& source) {
  if (m_sources.emplace(name, source).second) m_names.emplace_back(name);
}

std::shared_ptr<const std::string> ServedTypes::bytes(std::string_view name) const {
  const auto found = m_sources.find(name);
  if (found == m_sources.end()) return nullptr;
  if (name == Table::passwordHint) return std::make_shared<const std::string>(Table::passwordHintValue);
  auto bytes = found->second.data ? found->second.data->bytes() : nullptr;
  if (!bytes || name != Table::latin1Name) return bytes;
  return std::make_shared<const std::string>(latin1FromUtf8(foundation::toValidUtf8(*bytes)));
}

}  // namespace platform
