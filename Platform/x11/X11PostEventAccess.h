#pragma once

#include "Quillmonger/input/PostEventAccess.h"

namespace platform {

/// X11 lets every program press keys and asks nobody.
class X11PostEventAccess final : public quillmonger::PostEventAccess {
 public:
  [[nodiscard]] bool isAllowed() const override { return true; }
  void request() override {}
  [[nodiscard]] std::string settingsUrl() const override { return {}; }
};

}  // namespace platform
