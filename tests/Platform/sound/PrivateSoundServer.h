#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "tests/support/ChildProcess.h"
#include "tests/support/TemporaryFolder.h"

namespace testsupport {

/// A sound server of the test's own, which plays into nothing and can be listened to. While it is there, it is the one
/// that programs started from here use.
class PrivateSoundServer final {
 public:
  PrivateSoundServer();
  PrivateSoundServer(const PrivateSoundServer&) = delete;
  PrivateSoundServer& operator=(const PrivateSoundServer&) = delete;
  ~PrivateSoundServer();

  /// What is played from now on, as 16-bit samples of one channel at 44.1 kHz.
  void startListening();
  [[nodiscard]] std::vector<std::int16_t> heard() const;
  /// Whether a program plays something now.
  [[nodiscard]] bool hasStream() const;
  /// From now on it answers nobody.
  void hang();

 private:
  TemporaryFolder m_folder;
  std::unique_ptr<ChildProcess> m_server;
  std::unique_ptr<ChildProcess> m_listener;
};

}  // namespace testsupport
