#include "Quillmonger/history/PictureColors.h"

#include <algorithm>
#include <utility>

namespace quillmonger {

namespace {

// More rows than fit on a screen.
constexpr std::size_t mostWaiting = 64;

}  // namespace

std::optional<RGBColor> PictureColors::color(const Item& item) {
  if (!item->imageColorWork()) return item->imageColor();
  ask(item);
  return std::nullopt;
}

void PictureColors::ask(const Item& item) {
  if (m_isUnderWay && m_underWay.lock() == item) return;
  std::erase_if(m_waiting, [&item](const auto& waiting) { return waiting.expired() || waiting.lock() == item; });
  m_waiting.push_back(item);
  if (m_waiting.size() > mostWaiting) m_waiting.pop_front();
  if (!m_isUnderWay) startNext();
}

void PictureColors::startNext() {
  while (!m_waiting.empty()) {
    const Item item = m_waiting.back().lock();
    m_waiting.pop_back();
    auto work = item ? item->imageColorWork() : nullptr;
    if (!work) continue;
    m_underWay = item;
    m_isUnderWay = true;
    // The item itself is not handed over, so that it never ends on the other thread.
    m_queue.async([this, &runLoop = m_runLoop, work = std::move(work), weak = std::weak_ptr(item),
                   isAlive = std::weak_ptr(m_isAlive)] {
      runLoop.post([this, color = work(), weak, isAlive] {
        if (!isAlive.expired()) finish(weak.lock(), color);
      });
    });
    return;
  }
}

void PictureColors::finish(const Item& item, const std::optional<RGBColor>& color) {
  m_isUnderWay = false;
  if (item) item->setImageColor(color);
  startNext();
  if (item) m_found.send(item);
}

}  // namespace quillmonger
