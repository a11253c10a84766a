#include "Quillmonger/preview/PreviewViewModel.h"

#include <utility>

#include "Quillmonger/capture/PasteboardTypes.h"
#include "Quillmonger/history/ItemDetails.h"
#include "Quillmonger/preview/FadingText.h"
#include "Quillmonger/preview/RelativeDate.h"
#include "Quillmonger/settings/SettingsKeys.h"

namespace quillmonger {

namespace {

// In bytes. What is no longer is read at once.
constexpr std::size_t shortLength = 1U << 14U;
// Enough to fill the pane until a long text has been read.
constexpr std::size_t headLength = 1U << 12U;

foundation::Data inMemory(std::string_view text) { return foundation::Data(std::string(text)); }

void setResults(PreviewContent& content, std::shared_ptr<const OculetResults> results) {
  if (const auto* date = dateResult(*results)) content.dateRows = dateRows(date->date);
  if (const auto* color = colorResult(*results)) content.colorRows = colorRows(*color);
  content.results = std::move(results);
}

// Where the text that is shown lies, and how much of it is shown.
void setText(PreviewContent& content, foundation::Data data, std::size_t offset, std::string_view text,
             bool hidesLong) {
  const auto beginning = hidesLong ? fadingText(text, PreviewViewModel::characterLimit) : std::nullopt;
  content.isTextHidden = beginning.has_value();
  content.text = TextPieces(std::move(data), offset, beginning.value_or(text));
}

void setText(PreviewContent& content, const ClipboardItemViewModel& item, const SharedText& text, bool hidesLong) {
  const auto data = item.item()->data(pasteboardtype::NSPasteboardTypeString);
  if (!data || !text.owner || item.fileURL()) {
    setText(content, inMemory(text.view), 0, text.view, hidesLong);
    return;
  }
  const auto offset = static_cast<std::size_t>(text.view.data() - text.owner->data());
  setText(content, *data, offset, text.view, hidesLong);
}

}  // namespace

PreviewViewModel::PreviewViewModel(const Collaborators& collaborators)
    : m_with(collaborators), m_loading(collaborators.backgroundQueue, collaborators.runLoop) {
  m_subscriptions.push_back(
      m_with.defaults.updates<bool>(keys::hideLongTextPreview, defaults::Defaults::Initial::yes, [this](bool isOn) {
        m_hidesLongText = isOn;
        if (m_item.value()) loadContent(m_item.value());
      }));
  m_subscriptions.push_back(m_with.selectedItem.subscribe([this](const Item&) { update(); }));
  m_subscriptions.push_back(m_with.isWindowVisible.follow([this](bool) { update(); }));
}

void PreviewViewModel::update() {
  const Item item = m_with.isWindowVisible.value() ? m_with.selectedItem.value() : nullptr;
  if (item == m_item.value()) return;
  m_loading.cancel();
  m_footerTimer.cancel();
  m_pasteCount.cancel();
  if (item) {
    loadContent(item);
    updateFooter(item);
    m_pasteCount = item->item()->onChange([this] { updateFooter(m_item.value()); });
  }
  m_item.set(item);
  if (!item) m_content.set({});
}

void PreviewViewModel::loadContent(const Item& item) {
  const auto text = item->shortText(shortLength);
  if (!text) {
    loadLongContent(item);
    return;
  }
  PreviewContent content;
  content.details = item->details();
  setResults(content, item->oculetResults());
  setText(content, *item, *text, m_hidesLongText);
  m_content.set(std::move(content));
}

void PreviewViewModel::loadLongContent(const Item& item) {
  const std::int64_t byteCount = item->item()->dataSize();
  const std::string head = item->rowText(headLength).head;
  // A picture tells its size without its text.
  const bool hasPicture = item->image().has_value();
  const std::string details = hasPicture ? item->details() : byteCountText(byteCount, m_with.texts);
  const bool mayDetect = m_with.oculetManager->mayDetect(head);
  PreviewContent beginning;
  beginning.details = details;
  beginning.text = TextPieces(inMemory(head), 0, head);
  m_content.set(std::move(beginning));

  m_loading.start([this, item, details, hasPicture, byteCount, mayDetect, hidesLong = m_hidesLongText,
                   oculetManager = m_with.oculetManager]() -> LatestWork::Finish {
    const SharedText text = item->text();
    const std::size_t lines = hasPicture ? 0 : lineCount(text.view);
    PreviewContent content;
    if (mayDetect) setResults(content, std::make_shared<const OculetResults>(oculetManager->detect(text.view)));
    setText(content, *item, text, hidesLong);
    return [this, content = std::move(content), details, hasPicture, byteCount, lines]() mutable {
      content.details = hasPicture ? details : textDetails(byteCount, lines, m_with.texts);
      m_content.set(std::move(content));
    };
  });
}

void PreviewViewModel::updateFooter(const Item& item) {
  auto name = item->appName();
  const auto date = relativeDate(item->creationDate(), m_with.runLoop.date());
  m_footer.set({name ? item->item()->sourceAppBundleURL() : std::nullopt, std::move(name).value_or(std::string()),
                date.text, pasteCountText(item->item()->timesPasted(), m_with.texts)});
  m_footerTimer = m_with.runLoop.after(date.unit, [this] { updateFooter(m_item.value()); });
}

}  // namespace quillmonger
