#pragma once

#include <memory>
#include <string>

#include "Foundation/RunLoop.h"
#include "KeyboardShortcuts/HotKeyService.h"
#include "Platform/x11/X11KeyGrabs.h"
#include "Platform/x11/X11RawKeys.h"
#include "Platform/x11/X11Thread.h"

namespace platform {

/// Global chords as passive grabs of keys, on a connection and thread of their own: a press is known at once, whatever
/// the main thread does, and is told there. A changed keyboard mapping moves the grabs along. Raw keys come from
/// XInput 2, which tells them past every other program's grab.
class X11HotKeys final : public keyboardshortcuts::HotKeyService {
 public:
  /// Null when there is no X server. `runLoop` outlives the service.
  [[nodiscard]] static std::unique_ptr<X11HotKeys> connect(foundation::RunLoop& runLoop,
                                                           const std::string& display = {});
  X11HotKeys(const X11HotKeys&) = delete;
  X11HotKeys& operator=(const X11HotKeys&) = delete;
  ~X11HotKeys() override;

  void setHotKeyHandler(HotKeyHandler handler) override;
  void setRawKeyHandler(RawKeyHandler handler) override;
  bool registerHotKey(const keyboardshortcuts::HotKeyIdentifier& identifier, std::uint32_t keyCode,
                      std::uint32_t modifiers) override;
  void unregisterHotKey(const keyboardshortcuts::HotKeyIdentifier& identifier) override;
  [[nodiscard]] bool isHeldByAnother(std::uint32_t keyCode, std::uint32_t modifiers) override;

  /// Whether the user holds one of the chords, which keeps all keys from the other programs. On any thread.
  [[nodiscard]] bool isChordHeld() const { return m_grabs.isChordHeld(); }

 private:
  /// Called on the main thread.
  struct Handlers {
    HotKeyHandler hotKey;
    RawKeyHandler rawKey;
  };
  X11HotKeys(std::unique_ptr<X11Thread> thread, foundation::RunLoop& runLoop);
  void tellHotKey(const keyboardshortcuts::HotKeyIdentifier& identifier, keyboardshortcuts::EventType type);
  void tellRawKey(std::uint32_t keyCode, std::uint32_t modifiers, keyboardshortcuts::EventType type);

  foundation::RunLoop& m_runLoop;
  std::shared_ptr<Handlers> m_handlers = std::make_shared<Handlers>();
  X11KeyGrabs m_grabs;                  // touched on the thread alone
  X11RawKeys m_rawKeys;                 // likewise
  std::unique_ptr<X11Thread> m_thread;  // last, so that it ends before what it uses
};

}  // namespace platform
