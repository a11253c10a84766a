#include "Quillmonger/history/ClipboardItemViewModel.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "Defaults/Defaults.h"
#include "Foundation/Output.h"
#include "Foundation/Text.h"
#include "Quillmonger/capture/PasteboardTypes.h"
#include "Quillmonger/settings/SettingsKeys.h"

namespace quillmonger {

namespace {

using RemoveFormatting = ClipboardManaging::RemoveFormatting;

// No location is longer; what is longer needn't be read.
constexpr std::size_t longestUrl = 1U << 16U;

SharedText owned(std::string text) {
  const auto owner = std::make_shared<const std::string>(std::move(text));
  return {owner, *owner};
}

bool isTrailByte(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

// `text` without what a cut at its end, or at its start, left of a character.
std::string_view withoutCutEnd(std::string_view text) {
  std::size_t lead = text.size();
  while (lead > 0 && text.size() - lead < 4 && isTrailByte(text[lead - 1]))
    --lead;
  if (lead == 0) return text;
  return foundation::isValidUtf8(text.substr(lead - 1)) ? text : text.substr(0, lead - 1);
}
std::string_view withoutCutStart(std::string_view text) {
  while (!text.empty() && isTrailByte(text.front()))
    text.remove_prefix(1);
  return text;
}

std::string trimmedCopy(std::string_view text) {
  return std::string(foundation::trimmed(foundation::isValidUtf8(text) ? text : std::string_view()));
}

}  // namespace

ClipboardItemViewModel::ClipboardItemViewModel(std::shared_ptr<ClipboardItem> item,
                                               std::shared_ptr<const Services> services)
    : m_item(std::move(item)), m_services(std::move(services)) {}

ClipboardItemViewModel::~ClipboardItemViewModel() {
  foundation::printLine("ClipboardItemViewModel: deinit ", m_id.toString());
}

SharedText ClipboardItemViewModel::text() const {
  if (auto location = decodedFileURL()) return owned(*std::move(location));
  const auto data = m_item->data(pasteboardtype::NSPasteboardTypeString);
  const auto bytes = data ? data->bytes() : nullptr;
  if (!bytes || !foundation::isValidUtf8(*bytes)) return {};
  return {bytes, foundation::trimmed(*bytes)};
}

std::optional<SharedText> ClipboardItemViewModel::shortText(std::size_t limit) const {
  if (!fileURL()) {
    const auto data = m_item->data(pasteboardtype::NSPasteboardTypeString);
    if (data && data->size() > limit) return std::nullopt;
  }
  auto whole = text();
  return whole.view.size() <= limit ? std::optional(std::move(whole)) : std::nullopt;
}

std::string ClipboardItemViewModel::appKey() const {
  const auto& url = m_item->sourceAppBundleURL();
  return url ? url->absoluteString() : std::string();
}

RowText ClipboardItemViewModel::rowText(std::size_t limit) const {
  if (auto location = decodedFileURL()) return {*std::move(location), {}};
  const auto data = m_item->data(pasteboardtype::NSPasteboardTypeString);
  if (!data) return {};
  if (data->size() <= 2 * limit) return {trimmedCopy(data->part(0, data->size())), {}};
  return {trimmedCopy(withoutCutEnd(data->part(0, limit))),
          trimmedCopy(withoutCutStart(data->part(data->size() - limit, limit)))};
}

std::optional<std::string> ClipboardItemViewModel::appName() const {
  const auto& url = m_item->sourceAppBundleURL();
  return url ? m_services->applicationNaming.displayName(*url) : std::nullopt;
}

bool ClipboardItemViewModel::isImage() const {
  if (!m_isImage) {
    const auto isImageType = [](const auto& entry) { return imageTypes().contains(entry.first); };
    const auto& data = m_item->data();
    m_isImage = !m_item->isExcelTable() && std::any_of(data.begin(), data.end(), isImageType);
  }
  return *m_isImage;
}

bool ClipboardItemViewModel::isFileURL() const {
  if (!m_isFileURL) m_isFileURL = fileURL().has_value();
  return *m_isFileURL;
}

// Reads nothing that the object keeps, since the search comes here beside the main thread.
std::optional<foundation::Url> ClipboardItemViewModel::fileURL() const {
  const auto data = m_item->data(pasteboardtype::NSPasteboardTypeFileURL);
  if (!data || data->size() > longestUrl) return std::nullopt;
  return foundation::Url::parse(data->part(0, data->size()));
}

std::optional<std::string> ClipboardItemViewModel::decodedFileURL() const {
  const auto url = fileURL();
  if (!url) return std::nullopt;
  const auto decoded = foundation::removingPercentEscapes(url->absoluteString());
  return decoded && foundation::isValidUtf8(*decoded) ? *decoded : std::string();
}

void ClipboardItemViewModel::paste(Invert invert) {
  const bool isSettingOn = m_services->defaults[keys::alwaysPasteWithoutFormatting];
  const bool isTextAlone = !isImage() && !isFileURL() && isSettingOn != (invert == Invert::yes);
  m_services->clipboard.writeToPasteboard(*m_item, isTextAlone ? RemoveFormatting::yes : RemoveFormatting::no);
  m_services->clipboard.pasteIntoFrontmostApplication();
  m_item->setTimesPasted(m_item->timesPasted() + 1);
}

}  // namespace quillmonger
