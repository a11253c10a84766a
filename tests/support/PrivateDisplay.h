#pragma once

#include <sys/types.h>

#include <string>

namespace testsupport {

/// An X server of the test's own, without a screen that anyone sees and without a window manager. It ends with this
/// object, and with the test whatever becomes of it.
class PrivateDisplay final {
 public:
  PrivateDisplay();
  PrivateDisplay(const PrivateDisplay&) = delete;
  PrivateDisplay& operator=(const PrivateDisplay&) = delete;
  ~PrivateDisplay();

  /// As DISPLAY has it.
  [[nodiscard]] const std::string& name() const { return m_name; }
  /// "DISPLAY=…", for a child process.
  [[nodiscard]] std::string environment() const { return "DISPLAY=" + m_name; }

 private:
  pid_t m_process = -1;
  std::string m_name;
};

}  // namespace testsupport
