#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <utility>

#include "KeyboardShortcuts/HotKeyService.h"

namespace testsupport {

/// A hot key service without a keyboard: the test presses the chords.
class FakeHotKeyService final : public keyboardshortcuts::HotKeyService {
 public:
  using Chord = std::pair<std::uint32_t, std::uint32_t>;  // key code, modifiers

  void setHandler(Handler handler) override { m_handler = std::move(handler); }
  bool registerHotKey(std::uint32_t identifier, std::uint32_t keyCode, std::uint32_t modifiers) override {
    return !m_refused.contains({keyCode, modifiers}) && m_hotKeys.emplace(identifier, Chord(keyCode, modifiers)).second;
  }
  void unregisterHotKey(std::uint32_t identifier) override { m_hotKeys.erase(identifier); }

  /// From now on another program holds the chord.
  void refuse(Chord chord) { m_refused.insert(chord); }
  void press(Chord chord) { send(chord, Kind::pressed); }
  void release(Chord chord) { send(chord, Kind::released); }
  void sendUnknownIdentifier() { m_handler(0xFFFFFFFF, Kind::pressed); }

  [[nodiscard]] bool isRegistered(Chord chord) const { return count(chord) > 0; }
  [[nodiscard]] std::size_t count() const { return m_hotKeys.size(); }
  [[nodiscard]] std::size_t count(Chord chord) const {
    std::size_t found = 0;
    for (const auto& hotKey : m_hotKeys)
      found += hotKey.second == chord ? 1U : 0U;
    return found;
  }

 private:
  void send(Chord chord, Kind kind) {
    const auto hotKeys = m_hotKeys;
    for (const auto& [identifier, registered] : hotKeys) {
      if (registered == chord) m_handler(identifier, kind);
    }
  }

  Handler m_handler;
  std::map<std::uint32_t, Chord> m_hotKeys;
  std::set<Chord> m_refused;
};

}  // namespace testsupport
