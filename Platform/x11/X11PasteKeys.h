#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "Platform/x11/X11Thread.h"
#include "Quillmonger/input/PasteKeyPosting.h"

namespace platform {

/// Presses Control and V, with Shift for a terminal, through XTest: once the clipboard is what this program wrote last,
/// a window of another program has the keyboard, and the user holds no modifier and no chord of ours. Waits for that on
/// a thread of its own. A user who goes on to another window meanwhile gets nothing pasted there. Lock keys are off for
/// that moment, and a layout without "v" gives way to one that has it.
class X11PasteKeys final : public quillmonger::PasteKeyPosting {
 public:
  /// Whether the application of this window class is a terminal, beyond the ones that are known here. Called on the
  /// service's thread.
  using TerminalPredicate = std::function<bool(const std::string& windowClass)>;

  /// The window that owns CLIPBOARD when all that the program has written is on offer; 0 until then. Called on the
  /// service's thread.
  using WrittenWindow = std::function<std::uint32_t()>;

  /// Whether the user holds a chord that this program has grabbed. Called on the service's thread.
  using ChordPredicate = std::function<bool()>;

  /// How long a paste waits before it gives up and says so on standard output.
  struct Patience {
    std::chrono::milliseconds withPrograms{1000};  ///< until the clipboard is ours and the window has the keyboard
    std::chrono::milliseconds withHands{10000};    ///< until the user lets go of the modifiers and the chord
  };

  /// Null when there is no X server, or one without XTest.
  [[nodiscard]] static std::unique_ptr<X11PasteKeys> connect(WrittenWindow writtenWindow, TerminalPredicate isTerminal,
                                                             ChordPredicate isChordHeld, const Patience& patience,
                                                             const std::string& display = {});
  X11PasteKeys(const X11PasteKeys&) = delete;
  X11PasteKeys& operator=(const X11PasteKeys&) = delete;
  ~X11PasteKeys() override;

  void postPasteKeyEvents(std::uint16_t keyCode) override;

 private:
  class Injector;
  explicit X11PasteKeys(std::unique_ptr<X11Thread> thread, std::unique_ptr<Injector> injector);

  std::unique_ptr<Injector> m_injector;  // touched on the thread alone
  std::unique_ptr<X11Thread> m_thread;   // last, so that it ends before what it uses
};

}  // namespace platform
