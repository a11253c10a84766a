#include "Platform/x11/X11HotKeys.h"

#include <future>
#include <optional>
#include <utility>

#include "Foundation/Output.h"
#include "Platform/keyboard/KeyCodeTable.h"

namespace platform {

namespace {

using keyboardshortcuts::EventType;
using keyboardshortcuts::HotKeyIdentifier;

constexpr std::chrono::seconds answerTime{2};

std::optional<X11KeyGrabs::Chord> chordOf(std::uint32_t keyCode, std::uint32_t modifiers) {
  const auto key = evdevKey(keyCode);
  if (!key) return std::nullopt;
  return X11KeyGrabs::Chord{static_cast<xcb_keycode_t>(*key + x11KeycodeOffset), modifiers};
}

}  // namespace

std::unique_ptr<X11HotKeys> X11HotKeys::connect(foundation::RunLoop& runLoop, const std::string& display) {
  auto thread = X11Thread::connect(display);
  if (!thread) return nullptr;
  return std::unique_ptr<X11HotKeys>(new X11HotKeys(std::move(thread), runLoop));
}

X11HotKeys::X11HotKeys(std::unique_ptr<X11Thread> thread, foundation::RunLoop& runLoop)
    : m_runLoop(runLoop),
      m_grabs(thread->connection(), thread->screen().root,
              [this](const HotKeyIdentifier& identifier, EventType type) { tellHotKey(identifier, type); }),
      m_rawKeys(thread->connection(), thread->screen().root,
                [this](std::uint32_t keyCode, std::uint32_t modifiers, EventType type) {
                  tellRawKey(keyCode, modifiers, type);
                }),
      m_thread(std::move(thread)) {
  m_thread->start(
      [this](const xcb_generic_event_t& event) {
        m_grabs.handle(event);
        m_rawKeys.handle(event);
      },
      [] { foundation::printLine("The connection for global shortcuts was lost."); });
}

X11HotKeys::~X11HotKeys() = default;

void X11HotKeys::setHotKeyHandler(HotKeyHandler handler) { m_handlers->hotKey = std::move(handler); }

void X11HotKeys::setRawKeyHandler(RawKeyHandler handler) {
  const bool isWatching = static_cast<bool>(handler);
  if (isWatching != static_cast<bool>(m_handlers->rawKey)) {
    m_thread->run([this, isWatching] { m_rawKeys.watch(isWatching); });
  }
  m_handlers->rawKey = std::move(handler);
}

// A copy of the handler is called: it may set another one.
void X11HotKeys::tellHotKey(const HotKeyIdentifier& identifier, EventType type) {
  m_runLoop.post([weak = std::weak_ptr(m_handlers), identifier, type] {
    const auto handlers = weak.lock();
    const auto handler = handlers ? handlers->hotKey : nullptr;
    if (handler) handler(identifier, type);
  });
}

void X11HotKeys::tellRawKey(std::uint32_t keyCode, std::uint32_t modifiers, EventType type) {
  m_runLoop.post([weak = std::weak_ptr(m_handlers), keyCode, modifiers, type] {
    const auto handlers = weak.lock();
    const auto handler = handlers ? handlers->rawKey : nullptr;
    if (handler) handler(keyCode, modifiers, type);
  });
}

bool X11HotKeys::registerHotKey(const HotKeyIdentifier& identifier, std::uint32_t keyCode, std::uint32_t modifiers) {
  const auto chord = chordOf(keyCode, modifiers);
  if (!chord) return false;
  const auto isGranted = std::make_shared<std::promise<bool>>();
  auto answer = isGranted->get_future();
  m_thread->run([this, identifier, chord, isGranted] { isGranted->set_value(m_grabs.add(identifier, *chord)); });
  if (answer.wait_for(answerTime) == std::future_status::ready) return answer.get();
  // Granted after all, the chord would be taken from the other programs for nobody.
  unregisterHotKey(identifier);
  return false;
}

void X11HotKeys::unregisterHotKey(const HotKeyIdentifier& identifier) {
  m_thread->run([this, identifier] { m_grabs.remove(identifier); });
}

bool X11HotKeys::isHeldByAnother(std::uint32_t keyCode, std::uint32_t modifiers) {
  const auto chord = chordOf(keyCode, modifiers);
  if (!chord) return false;
  const auto isHeld = std::make_shared<std::promise<bool>>();
  auto answer = isHeld->get_future();
  m_thread->run([this, chord, isHeld] { isHeld->set_value(m_grabs.isHeldByAnother(*chord)); });
  return answer.wait_for(answerTime) == std::future_status::ready && answer.get();
}

}  // namespace platform
