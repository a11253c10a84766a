#include "Platform/freedesktop/OfferedTypes.h"

#include <algorithm>
#include <array>
#include <utility>

#include "Foundation/Text.h"
#include "Platform/freedesktop/PasteboardTypeTable.h"
#include "Platform/freedesktop/UriList.h"
#include "Quillmonger/capture/PasteboardTypes.h"

namespace platform {

namespace {

namespace pasteboardtype = quillmonger::pasteboardtype;
using quillmonger::PasteboardItem;
using Table = PasteboardTypeTable;

constexpr std::size_t typeLimit = 256;

std::string utf8FromLatin1(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  for (const char character : text) {
    const auto byte = static_cast<unsigned char>(character);
    if (byte < 0x80) {
      result.push_back(character);
    } else {
      result.push_back(static_cast<char>(0xC0 | (byte >> 6)));
      result.push_back(static_cast<char>(0x80 | (byte & 0x3F)));
    }
  }
  return result;
}

std::string_view bestPicture(const std::vector<std::string>& names) {
  static constexpr std::array best = {pasteboardtype::NSPasteboardTypePNG, pasteboardtype::jpeg,
                                      pasteboardtype::NSPasteboardTypeTIFF};
  for (const std::string_view type : best) {
    for (const std::string& name : names) {
      const Table::Entry* entry = Table::entryForName(name);
      if (entry != nullptr && entry->type == type) return type;
    }
  }
  return {};
}

std::string typeOf(const UriList::Entry& entry) {
  return std::string(entry.isFile ? pasteboardtype::NSPasteboardTypeFileURL : pasteboardtype::NSPasteboardTypeURL);
}

}  // namespace

OfferedTypes::OfferedTypes(const std::vector<std::string>& names)
    : m_isOffice(std::ranges::any_of(names, &Table::isOfficeFormat)),
      m_hasText(std::ranges::any_of(
          names,
          [](const std::string& name) { return Table::entryForName(name) != nullptr && Table::isPlainText(name); })),
      m_bestPicture(bestPicture(names)) {
  for (const std::string& name : names) {
    if (isWanted(name)) add(name);
  }
}

bool OfferedTypes::isWanted(std::string_view name) const {
  if (!Table::isFormat(name) || Table::isCostly(name)) return false;
  const Table::Entry* entry = Table::entryForName(name);
  if (Table::isPicture(name)) {
    if (m_isOffice && m_hasText) return false;
    if (entry != nullptr) return entry->type == m_bestPicture;
    return m_bestPicture.empty() || Table::isDrawing(name);
  }
  // A further encoding of the text that is read already.
  return entry != nullptr || !m_hasText || !Table::isPlainText(name);
}

void OfferedTypes::add(const std::string& name) {
  const Table::Entry* entry = Table::entryForName(name);
  const std::string type = entry != nullptr ? std::string(entry->type) : name;
  auto request = std::ranges::find(m_requests, type, &Request::type);
  if (request == m_requests.end()) {
    if (m_requests.size() == typeLimit) return;
    if (type == Table::uriList) m_types.emplace_back(pasteboardtype::NSPasteboardTypeFileURL);
    m_types.push_back(type);
    request = m_requests.insert(m_requests.end(), Request{type, {}});
  }
  if (type == pasteboardtype::concealed || std::ranges::count(request->names, name) > 0) return;
  if (entry == nullptr) {
    request->names.push_back(name);
    return;
  }
  const auto place = std::ranges::upper_bound(request->names, Table::preference(*entry, name), {},
                                              [entry](const auto& other) { return Table::preference(*entry, other); });
  if (request->names.size() < entry->readingNames.size()) request->names.insert(place, name);
}

std::optional<std::string> OfferedTypes::decode(const Request& request, std::string_view name, std::string bytes) {
  if (request.type != pasteboardtype::utf8PlainText) return bytes;
  if (name == Table::latin1Name) return utf8FromLatin1(bytes);
  if (!foundation::isValidUtf8(bytes)) return std::nullopt;
  return bytes;
}

std::vector<PasteboardItem> OfferedTypes::items(const std::vector<std::optional<foundation::Data>>& values) const {
  std::vector<PasteboardItem> items(1);
  for (std::size_t index = 0; index < m_requests.size(); ++index) {
    const std::string& type = m_requests[index].type;
    std::optional<foundation::Data> value = values[index];
    if (m_requests[index].names.empty()) value.emplace();
    if (type == Table::uriList) {
      const auto text = value ? value->bytes() : nullptr;
      const UriList list = text ? UriList::parse(*text) : UriList();
      for (const UriList::Entry& entry : list.entries) {
        if (&entry != &list.entries.front()) items.emplace_back();
        items.back().representations.push_back({typeOf(entry), foundation::Data(entry.url)});
      }
      if (!value) {
        items.front().representations.push_back({std::string(pasteboardtype::NSPasteboardTypeFileURL), std::nullopt});
      }
    }
    items.front().representations.push_back({type, std::move(value)});
  }
  return items;
}

}  // namespace platform
