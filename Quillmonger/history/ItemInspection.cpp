#include "Quillmonger/history/ItemInspection.h"

#include <algorithm>
#include <utility>

namespace quillmonger {

namespace {

// More rows than fit on a screen.
constexpr std::size_t mostWaiting = 64;

}  // namespace

std::optional<RGBColor> ItemInspection::imageColor(const Item& item) {
  return isKnown(item) ? item->imageColor() : std::nullopt;
}

bool ItemInspection::hasOculetResults(const Item& item) { return isKnown(item) && item->hasOculetResults(); }

std::optional<Color> ItemInspection::textColor(const Item& item) {
  return isKnown(item) ? item->textColor() : std::nullopt;
}

// Asks for what isn't known.
bool ItemInspection::isKnown(const Item& item) {
  if (!item->inspection()) return true;
  if (m_isUnderWay && m_underWay.lock() == item) return false;
  std::erase_if(m_waiting, [&item](const auto& waiting) { return waiting.expired() || waiting.lock() == item; });
  m_waiting.push_back(item);
  if (m_waiting.size() > mostWaiting) m_waiting.pop_front();
  if (!m_isUnderWay) startNext();
  return false;
}

void ItemInspection::startNext() {
  while (!m_waiting.empty()) {
    const Item item = m_waiting.back().lock();
    m_waiting.pop_back();
    auto work = item ? item->inspection() : nullptr;
    if (!work) continue;
    m_underWay = item;
    m_isUnderWay = true;
    // The item itself is not handed over, so that it never ends on the other thread.
    m_queue.async([this, &runLoop = m_runLoop, work = std::move(work), weak = std::weak_ptr(item),
                   isAlive = std::weak_ptr(m_isAlive)] {
      runLoop.post([this, findings = work(), weak, isAlive] {
        if (!isAlive.expired()) finish(weak.lock(), findings);
      });
    });
    return;
  }
}

void ItemInspection::finish(const Item& item, const ClipboardItemViewModel::Findings& findings) {
  m_isUnderWay = false;
  if (item) item->takeFindings(findings);
  startNext();
  if (item) m_found.send(item);
}

}  // namespace quillmonger
