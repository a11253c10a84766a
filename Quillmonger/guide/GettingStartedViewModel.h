#pragma once

#include <functional>

#include "Foundation/Published.h"
#include "Quillmonger/guide/LaunchScreen.h"

namespace quillmonger {

/// Where the user is in the guide. Nothing of it is stored: each run begins at `welcome`. Main thread.
class GettingStartedViewModel final {
 public:
  struct Endings {
    std::function<void()> quit;    ///< ends the program; the guide comes again at the next start
    std::function<void()> finish;  ///< the user has been through the guide
  };

  explicit GettingStartedViewModel(Endings endings);

  [[nodiscard]] foundation::Published<LaunchScreen>& currentScreen() { return m_currentScreen; }

  /// The forward button: the next screen, or the finish on the last one.
  void forward();
  /// The back button: the screen before, or the program's end on the first one.
  void back();
  /// The next screen; nothing happens on the last one.
  void showNext();
  /// The screen before; nothing happens on the first one.
  void showPrevious();
  void quit() { m_endings.quit(); }

 private:
  Endings m_endings;
  foundation::Published<LaunchScreen> m_currentScreen{LaunchScreen::welcome};
};

}  // namespace quillmonger
