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
  using Identifier = keyboardshortcuts::HotKeyIdentifier;
  using EventStatus = keyboardshortcuts::EventStatus;
  using EventType = keyboardshortcuts::EventType;
  using Chord = std::pair<std::uint32_t, std::uint32_t>;  // key code, modifiers

  void setHotKeyHandler(HotKeyHandler handler) override { m_hotKeyHandler = std::move(handler); }
  void setRawKeyHandler(RawKeyHandler handler) override { m_rawKeyHandler = std::move(handler); }
  bool registerHotKey(const Identifier& identifier, std::uint32_t keyCode, std::uint32_t modifiers) override {
    ++m_registrations;
    return !m_refused.contains({keyCode, modifiers}) && m_hotKeys.emplace(identifier, Chord(keyCode, modifiers)).second;
  }
  void unregisterHotKey(const Identifier& identifier) override { m_hotKeys.erase(identifier); }
  [[nodiscard]] bool isHeldByAnother(std::uint32_t keyCode, std::uint32_t modifiers) override {
    return m_refused.contains({keyCode, modifiers}) && !isRegistered({keyCode, modifiers});
  }

  /// From now on another program holds the chord.
  void refuse(Chord chord) { m_refused.insert(chord); }
  /// From now on nobody else does.
  void allow(Chord chord) { m_refused.erase(chord); }
  /// A key event of the user. Tells the first hot key of the chord, as the desktop does.
  void press(Chord chord) { send(chord, EventType::keyDown); }
  void release(Chord chord) { send(chord, EventType::keyUp); }
  EventStatus tell(const Identifier& identifier) { return m_hotKeyHandler(identifier, EventType::keyDown); }
  EventStatus tellRawKey(Chord chord) { return m_rawKeyHandler(chord.first, chord.second, EventType::keyDown); }

  [[nodiscard]] bool listens() const { return static_cast<bool>(m_hotKeyHandler); }
  [[nodiscard]] bool watchesRawKeys() const { return static_cast<bool>(m_rawKeyHandler); }
  [[nodiscard]] bool isRegistered(Chord chord) const { return count(chord) > 0; }
  [[nodiscard]] std::size_t count() const { return m_hotKeys.size(); }
  [[nodiscard]] std::size_t count(Chord chord) const {
    std::size_t found = 0;
    for (const auto& hotKey : m_hotKeys)
      found += hotKey.second == chord ? 1U : 0U;
    return found;
  }
  /// How often the service was asked for a hot key.
  [[nodiscard]] int registrations() const { return m_registrations; }
  [[nodiscard]] const std::map<Identifier, Chord>& hotKeys() const { return m_hotKeys; }

 private:
  void send(Chord chord, EventType type) {
    if (const auto handler = m_rawKeyHandler) handler(chord.first, chord.second, type);
    for (const auto& [identifier, registered] : m_hotKeys) {
      if (registered != chord || !m_hotKeyHandler) continue;
      const auto handler = m_hotKeyHandler;
      handler(Identifier(identifier), type);
      return;
    }
  }

  HotKeyHandler m_hotKeyHandler;
  RawKeyHandler m_rawKeyHandler;
  std::map<Identifier, Chord> m_hotKeys;
  std::set<Chord> m_refused;
  int m_registrations = 0;
};

}  // namespace testsupport
