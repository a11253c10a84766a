#pragma once

#include "Foundation/Published.h"

namespace quillmonger {

/// Whether a window is on the screen, for what it shows. Main thread.
class WindowVisibility final {
 public:
  [[nodiscard]] foundation::Published<bool>& isVisible() { return m_isVisible; }

 private:
  foundation::Published<bool> m_isVisible{false};
};

}  // namespace quillmonger
