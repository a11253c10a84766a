#pragma once

#include <string>

namespace testsupport {

/// What any thread writes to standard output from now on, until this object goes; one at a time.
class CapturedOutput final {
 public:
  CapturedOutput();
  CapturedOutput(const CapturedOutput&) = delete;
  CapturedOutput& operator=(const CapturedOutput&) = delete;
  ~CapturedOutput();

  /// All of it up to now.
  [[nodiscard]] std::string text() const;

 private:
  int m_original;
  int m_file;
};

}  // namespace testsupport
