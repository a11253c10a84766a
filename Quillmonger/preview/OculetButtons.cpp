#include "Quillmonger/preview/OculetButtons.h"

#include <memory>

#include "Quillmonger/capture/PasteboardTypes.h"
#include "Quillmonger/input/Action.h"

namespace quillmonger {

namespace {

using Disposition = LocalEventMonitoring::Disposition;

// -1 for anything but Option, alone, with a digit.
int pressedDigit(const KeyEvent& event) {
  constexpr std::uint32_t modifiers = shiftFlag | controlFlag | optionFlag | commandFlag;
  const bool isChord = event.type == KeyEvent::Type::keyDown && (event.modifierFlags & modifiers) == optionFlag;
  return isChord ? quickPasteIndex(event.keyCode) : -1;
}

}  // namespace

OculetButtons::OculetButtons(const Collaborators& collaborators) : m_with(collaborators) {
  m_itemSubscription = m_with.preview.item().subscribe([this](const PreviewViewModel::Item& item) { takeItem(item); });
  m_eventMonitor = m_with.eventMonitoring.addLocalMonitor([this](const KeyEvent& event) { return take(event); });
}

// A digit without a button is no text for the search field either, as long as others have one.
Disposition OculetButtons::take(const KeyEvent& event) {
  const int digit = pressedDigit(event);
  if (digit < 0 || !m_with.preview.item().value()) return Disposition::pass;
  if (!event.isRepeat) press(static_cast<std::size_t>(digit));
  return Disposition::swallow;
}

void OculetButtons::press(std::size_t button) {
  const PreviewContent& content = m_with.preview.content().value();
  const auto copied = [this, button, pressed = std::weak_ptr(m_with.preview.item().value())](const auto& text) {
    const auto item = pressed.lock();
    if (item && item == m_with.preview.item().value()) showCopied(button, text);
  };
  std::size_t index = button;
  for (const auto* rows : {&content.dateRows, &content.colorRows}) {
    if (index < rows->size()) return m_with.copying.copy([value = (*rows)[index].value] { return value; }, copied);
    index -= rows->size();
  }
  if (jsonResult(*content.results) == nullptr) return;
  if (index == 0) m_with.copying.copyJson(content.results, JsonForm::beautified, copied);
  if (index == 1) m_with.copying.copyJson(content.results, JsonForm::minified, copied);
}

void OculetButtons::showCopied(std::size_t button, const foundation::Data& text) {
  m_text = text;
  m_copied.set(button);
  m_tick = m_with.runLoop.after(tickTime, [this] { clear(); });
}

void OculetButtons::takeItem(const PreviewViewModel::Item& item) {
  if (!m_copied.value()) return;
  const auto text = item ? item->item()->data(pasteboardtype::NSPasteboardTypeString) : std::nullopt;
  if (text != m_text) clear();
}

void OculetButtons::clear() {
  m_tick.cancel();
  m_text = {};
  m_copied.set(std::nullopt);
}

}  // namespace quillmonger
