#pragma once

#include <sys/types.h>

#include <optional>
#include <string>
#include <vector>

namespace testsupport {

/// A program that a test runs beside itself; it never outlives the test.
class ChildProcess final {
 public:
  /// `arguments`: the program, searched in PATH, and its own. `environment`: "NAME=value" entries that are added.
  /// `input`: what it finds on standard input.
  explicit ChildProcess(std::vector<std::string> arguments, std::vector<std::string> environment = {},
                        const std::string& input = {});
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;
  ~ChildProcess();

  /// Whether it has ended; never waits.
  [[nodiscard]] bool isFinished();
  /// Once it has ended; absent when a signal ended it.
  [[nodiscard]] std::optional<int> exitCode() const;
  /// What it has written to standard output so far.
  [[nodiscard]] std::string output() const;
  /// Sends the signal, and does not wait.
  void signal(int number) const;
  /// Sends the signal, and waits for the end.
  void end(int signal);

 private:
  pid_t m_process = -1;
  int m_output = -1;
  std::optional<int> m_status;
};

}  // namespace testsupport
