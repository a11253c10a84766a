#pragma once

namespace quillmonger {

/// The permission to press keys in other applications. Main thread.
class PermissionsManaging {
 public:
  PermissionsManaging() = default;
  PermissionsManaging(const PermissionsManaging&) = delete;
  PermissionsManaging& operator=(const PermissionsManaging&) = delete;
  virtual ~PermissionsManaging() = default;

  /// Asked anew each time; nothing caches the answer.
  [[nodiscard]] virtual bool isAccessibilityAllowed() const = 0;
  /// Leads the user to granting it. Nothing happens on a desktop without such a permission.
  virtual void requestAccessibilityPermission() = 0;
};

}  // namespace quillmonger
