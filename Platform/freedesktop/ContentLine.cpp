#include "Platform/freedesktop/ContentLine.h"

#include <utility>

#include "Foundation/Output.h"

namespace platform {

namespace {

std::size_t byteCount(const ClipboardSnapshot& snapshot) {
  std::size_t count = 0;
  if (!snapshot.content) return count;
  for (const auto& item : snapshot.content->items()) {
    for (const auto& representation : item.representations) {
      if (representation.data) count += representation.data->size();
    }
  }
  return count;
}

}  // namespace

void ContentLine::push(ClipboardSnapshot snapshot) {
  m_waitingBytes += byteCount(snapshot);
  m_waiting.push_back(std::move(snapshot));
  while (m_waitingBytes > m_limit && m_waiting.size() > 1) {
    m_waitingBytes -= byteCount(m_waiting.front());
    m_waiting.pop_front();
    foundation::printLine("dropped a waiting clipboard content: too many bytes wait");
  }
}

void ContentLine::advance() {
  if (m_waiting.empty()) return;
  m_present = std::move(m_waiting.front());
  m_waiting.pop_front();
  m_waitingBytes -= byteCount(m_present);
  ++m_changeCount;
}

}  // namespace platform
