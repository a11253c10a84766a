#pragma once

#include <memory>
#include <string>

#include "Foundation/RunLoop.h"
#include "KeyboardShortcuts/HotKeyService.h"
#include "Platform/x11/X11Thread.h"

namespace platform {

/// Global chords as passive grabs of keys, on a connection and thread of their own: a press is known at once, whatever
/// the main thread does, and is told there. A changed keyboard mapping moves the grabs along.
class X11HotKeys final : public keyboardshortcuts::HotKeyService {
 public:
  /// Null when there is no X server. `runLoop` outlives the service.
  [[nodiscard]] static std::unique_ptr<X11HotKeys> connect(foundation::RunLoop& runLoop,
                                                           const std::string& display = {});
  ~X11HotKeys() override;

  void setHandler(Handler handler) override;
  bool registerHotKey(std::uint32_t identifier, std::uint32_t keyCode, std::uint32_t modifiers) override;
  void unregisterHotKey(std::uint32_t identifier) override;

 private:
  class Grabs;
  X11HotKeys(std::unique_ptr<X11Thread> thread, foundation::RunLoop& runLoop);
  void tell(std::uint32_t identifier, Kind kind);

  foundation::RunLoop& m_runLoop;
  std::shared_ptr<Handler> m_handler = std::make_shared<Handler>();
  std::unique_ptr<Grabs> m_grabs;       // touched on the thread alone
  std::unique_ptr<X11Thread> m_thread;  // last, so that it ends before what it uses
};

}  // namespace platform
