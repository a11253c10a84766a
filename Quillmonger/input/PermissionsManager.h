#pragma once

#include "Quillmonger/capture/PermissionsManaging.h"

namespace quillmonger {

/// For a desktop on which pressing keys in other applications needs no permission.
class PermissionsManager final : public PermissionsManaging {
 public:
  [[nodiscard]] bool isAccessibilityAllowed() const override { return true; }
  void requestAccessibilityPermission() override {}
};

}  // namespace quillmonger
