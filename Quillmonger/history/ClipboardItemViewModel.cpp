#include "Quillmonger/history/ClipboardItemViewModel.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <string_view>
#include <utility>

#include "Defaults/Defaults.h"
#include "Foundation/Fatal.h"
#include "Foundation/Output.h"
#include "Foundation/Text.h"
#include "Quillmonger/capture/PasteboardTypes.h"
#include "Quillmonger/history/ItemDetails.h"
#include "Quillmonger/settings/SettingsKeys.h"

namespace quillmonger {

namespace {

using RemoveFormatting = ClipboardManaging::RemoveFormatting;

constexpr PictureSize imageBox{332, 445};
// The results of longer texts, in bytes, are forgotten with their last user, since they may hold the text.
constexpr std::size_t longestKept = 1U << 14U;
constexpr std::size_t headLength = 256;

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

SharedText trimmedText(const foundation::Data& data) {
  const auto bytes = data.bytes();
  if (!bytes || !foundation::isValidUtf8(*bytes)) return {};
  return {bytes, foundation::trimmed(*bytes)};
}

ClipboardItemViewModel::Recognised summary(const OculetResults& results) {
  const auto* color = colorResult(results);
  return {!results.empty(), color == nullptr ? std::nullopt : std::optional(*color)};
}

std::optional<RGBColor> averageColor(const PictureReading& reading, const std::optional<ScaledPicture>& picture) {
  constexpr int edge = 20;
  const auto pixels = picture ? reading.pixels(picture->picture, edge) : std::nullopt;
  if (!pixels) return std::nullopt;
  const auto average = [&pixels](unsigned shift) {
    std::uint32_t sum = 0;
    for (const std::uint32_t pixel : *pixels)
      sum += (pixel >> shift) & 0xFFU;
    return static_cast<double>(sum) / (edge * edge) / 255;
  };
  return RGBColor(average(16), average(8), average(0));
}

}  // namespace

struct ClipboardItemViewModel::Answers {
  std::optional<bool> isImage;
  std::optional<bool> isFileURL;
  std::optional<std::optional<ScaledPicture>> image;
  std::optional<std::optional<RGBColor>> imageColor;
  std::optional<Recognised> recognised;
  std::weak_ptr<const OculetResults> oculetResults;
  std::shared_ptr<const OculetResults> keptResults;
};

ClipboardItemViewModel::ClipboardItemViewModel(std::shared_ptr<ClipboardItem> item,
                                               std::shared_ptr<const Services> services)
    : m_item(std::move(item)), m_services(std::move(services)) {}

ClipboardItemViewModel::~ClipboardItemViewModel() {
  foundation::printLine("ClipboardItemViewModel: deinit ", m_id.toString());
}

SharedText ClipboardItemViewModel::text() const {
  if (auto location = decodedFileURL()) return owned(*std::move(location));
  const auto data = m_item->data(pasteboardtype::NSPasteboardTypeString);
  return data ? trimmedText(*data) : SharedText();
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

std::string ClipboardItemViewModel::details() const {
  const auto picture = m_item->image();
  const auto size = picture ? m_services->pictureReading.size(*picture) : std::nullopt;
  if (size) return pictureDetails(m_item->dataSize(), *size, m_services->texts);
  return textDetails(m_item->dataSize(), lineCount(text().view), m_services->texts);
}

ClipboardItemViewModel::Answers& ClipboardItemViewModel::answers() const {
  if (!m_answers) m_answers = std::make_unique<Answers>();
  return *m_answers;
}

bool ClipboardItemViewModel::isImage() const {
  auto& answer = answers().isImage;
  if (!answer) {
    const auto isImageType = [](const auto& entry) { return imageTypes().contains(entry.first); };
    const auto& data = m_item->data();
    answer = !m_item->isExcelTable() && std::any_of(data.begin(), data.end(), isImageType);
  }
  return *answer;
}

std::optional<ScaledPicture> ClipboardItemViewModel::image() const {
  auto& answer = answers().image;
  if (!answer) answer = scaledPicture();
  return *answer;
}

std::optional<ScaledPicture> ClipboardItemViewModel::scaledPicture() const {
  const auto picture = m_item->image();
  const auto size = picture ? m_services->pictureReading.size(*picture) : std::nullopt;
  if (!size) return std::nullopt;
  const double scaleX = imageBox.width / size->width;
  const double scaleY = imageBox.height / size->height;
  if (scaleX < scaleY) return ScaledPicture{*picture, {imageBox.width, size->height * scaleX}};
  return ScaledPicture{*picture, {size->width * scaleY, imageBox.height}};
}

std::optional<RGBColor> ClipboardItemViewModel::imageColor() const {
  auto& answer = answers().imageColor;
  if (!answer) answer = averageColor(m_services->pictureReading, image());
  return *answer;
}

bool ClipboardItemViewModel::isFileURL() const {
  auto& answer = answers().isFileURL;
  if (!answer) answer = fileURL().has_value();
  return *answer;
}

std::shared_ptr<const OculetResults> ClipboardItemViewModel::oculetResults() const {
  if (auto known = answers().oculetResults.lock()) return known;
  auto results = detect();
  answers().oculetResults = results;
  answers().recognised = summary(*results);
  if (!isLong()) answers().keptResults = results;
  return results;
}

const ClipboardItemViewModel::Recognised& ClipboardItemViewModel::recognised() const {
  if (!answers().recognised) static_cast<void>(oculetResults());
  return *answers().recognised;
}

bool ClipboardItemViewModel::hasOculetResults() const { return recognised().isAnything; }

std::optional<Color> ClipboardItemViewModel::textColor() const { return recognised().color; }

bool ClipboardItemViewModel::isLong() const {
  const auto data = m_item->data(pasteboardtype::NSPasteboardTypeString);
  return data && data->size() > longestKept && !fileURL();
}

// Of a long text the start is enough to tell that nothing is in it, as in nearly all.
bool ClipboardItemViewModel::mayHaveLongDocument() const {
  return isLong() && m_services->oculetManager->mayDetect(rowText(headLength).head);
}

std::shared_ptr<const OculetResults> ClipboardItemViewModel::detect() const {
  if (isLong() && !mayHaveLongDocument()) return std::make_shared<const OculetResults>();
  return std::make_shared<const OculetResults>(m_services->oculetManager->detect(text().view));
}

std::function<ClipboardItemViewModel::Findings()> ClipboardItemViewModel::inspection() const {
  const bool wantsColor = isImage() && !answers().imageColor;
  const bool wantsResults = !answers().recognised && mayHaveLongDocument();
  if (!wantsColor && !wantsResults) return nullptr;
  return [wantsColor, picture = wantsColor ? image() : std::nullopt,
          data = wantsResults ? m_item->data(pasteboardtype::NSPasteboardTypeString) : std::nullopt,
          services = m_services] {
    Findings findings;
    if (wantsColor) findings.imageColor = averageColor(services->pictureReading, picture);
    if (data) findings.recognised = summary(services->oculetManager->detect(trimmedText(*data).view));
    return findings;
  };
}

void ClipboardItemViewModel::takeFindings(const Findings& findings) {
  if (findings.imageColor) answers().imageColor = findings.imageColor;
  if (findings.recognised) answers().recognised = findings.recognised;
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
  const std::int64_t count = m_item->timesPasted();
  if (count == std::numeric_limits<std::int64_t>::max()) {
    foundation::stopProcess("A record was pasted too often to be counted.");
  }
  m_item->setTimesPasted(count + 1);
}

}  // namespace quillmonger

std::size_t std::hash<quillmonger::ClipboardItemViewModel>::operator()(
    const quillmonger::ClipboardItemViewModel& item) const {
  const auto first = std::hash<std::string>()(item.id().toString());
  const auto second = std::hash<std::string_view>()(item.text().view);
  return first ^ (second + 0x9E3779B97F4A7C15U + (first << 6U) + (first >> 2U));
}
