#include "Platform/freedesktop/Succession.h"

#include <utility>

namespace platform {

Succession::Number Succession::begin(std::uint32_t time) {
  if (const auto previous = m_entries.find(m_latest); previous != m_entries.end()) {
    const std::uint32_t stood = time - previous->second.time;
    if (stood >= static_cast<std::uint32_t>(shortestStand.count())) {
      previous->second.hasStood = true;
    } else if (!previous->second.hasStood) {
      m_entries.erase(previous);
    }
  }
  m_entries.emplace(++m_latest, Entry{.time = time, .snapshot = {}});
  deliverReady();
  return m_latest;
}

void Succession::settle(Number number) {
  const auto entry = m_entries.find(number);
  if (entry == m_entries.end()) return;
  entry->second.hasStood = true;
  deliverReady();
}

void Succession::complete(Number number, std::optional<ClipboardSnapshot> snapshot) {
  const auto entry = m_entries.find(number);
  if (entry == m_entries.end() || entry->second.isComplete) return;
  entry->second.isComplete = true;
  entry->second.snapshot = std::move(snapshot);
  deliverReady();
}

void Succession::release(Number number) {
  const auto entry = m_entries.find(number);
  if (entry == m_entries.end()) return;
  entry->second.holdsBack = false;
  deliverReady();
}

void Succession::deliverReady() {
  for (auto next = m_entries.begin(); next != m_entries.end();) {
    Entry& entry = next->second;
    if (entry.isComplete && entry.hasStood) {
      std::optional<ClipboardSnapshot> snapshot = std::move(entry.snapshot);
      next = m_entries.erase(next);
      if (snapshot) m_deliver(*std::move(snapshot));
    } else if (entry.holdsBack) {
      return;
    } else {
      ++next;
    }
  }
}

}  // namespace platform
