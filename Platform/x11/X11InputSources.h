#pragma once

#include <memory>
#include <string>

#include "Foundation/RunLoop.h"
#include "Platform/x11/X11Thread.h"
#include "Sauce/InputSourceService.h"

namespace platform {

/// The layouts of an X server's keyboard, one for each group of its keymap. A thread of its own listens to the server
/// and reads the keymap anew when that changes; what it finds is taken over, and told, in turns of the main thread.
///
/// There always is a current layout: the US one where the server has no XKB, and the last one known after the
/// connection was lost.
class X11InputSources final : public sauce::InputSourceService {
 public:
  /// Reads the keymap, and waits for the server. Null when there is no X server. `runLoop` outlives the service.
  [[nodiscard]] static std::unique_ptr<X11InputSources> connect(foundation::RunLoop& runLoop,
                                                                const std::string& display = {});
  X11InputSources(const X11InputSources&) = delete;
  X11InputSources& operator=(const X11InputSources&) = delete;
  ~X11InputSources() override;

  [[nodiscard]] std::vector<sauce::InputSource> enabledInputSources() const override;
  [[nodiscard]] std::optional<sauce::InputSource> currentKeyboardLayoutInputSource() const override;
  [[nodiscard]] std::optional<sauce::InputSource> currentASCIICapableInputSource() const override;
  [[nodiscard]] bool hasLayoutData(const sauce::InputSource& source) const override;
  [[nodiscard]] std::optional<std::string> translate(const sauce::InputSource& source, sauce::KeyCode keyCode,
                                                     std::uint32_t modifiers) const override;
  foundation::Subscription observeSelectedInputSource(Observer observer) override;
  foundation::Subscription observeEnabledInputSources(Observer observer) override;

 private:
  class Watch;
  struct Present;
  X11InputSources(std::unique_ptr<X11Thread> thread, foundation::RunLoop& runLoop);

  std::shared_ptr<Present> m_present;   // touched on the main thread alone
  std::unique_ptr<Watch> m_watch;       // touched on the thread alone
  std::unique_ptr<X11Thread> m_thread;  // last, so that it ends before what it uses
};

}  // namespace platform
