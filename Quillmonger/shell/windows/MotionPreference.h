#pragma once

namespace quillmonger {

/// What the user has told the desktop about motion. Main thread.
class MotionPreference {
 public:
  MotionPreference() = default;
  MotionPreference(const MotionPreference&) = delete;
  MotionPreference& operator=(const MotionPreference&) = delete;
  virtual ~MotionPreference() = default;

  /// Whether windows should come and go without sliding. False where the desktop says nothing. It can change at any
  /// time.
  [[nodiscard]] virtual bool reducesMotion() const = 0;
};

}  // namespace quillmonger
