#pragma once

#include <cstdint>
#include <limits>
#include <map>
#include <memory>
#include <mutex>
#include <string>

namespace testsupport {

/// While it lives, every database that is opened lies on a disk that can fill up, break, and lose at a power cut what
/// was not yet synchronized. One at a time. Its functions are for any thread.
class FaultyFileSystem final {
 public:
  FaultyFileSystem();
  FaultyFileSystem(const FaultyFileSystem&) = delete;
  FaultyFileSystem& operator=(const FaultyFileSystem&) = delete;
  ~FaultyFileSystem();

  /// Further writes succeed for this many bytes; then the disk is full.
  void fillUpAfter(std::int64_t bytes);
  /// Whether synchronizing fails.
  void setSyncFails(bool fails);
  /// All works again.
  void repair();

  /// Puts under `folder` what would be there if the power had gone at this moment: of each file the content that was
  /// synchronized last, and nothing of what was written since.
  void writeStateAfterPowerCut(const std::string& folder) const;

  struct State;

 private:
  std::shared_ptr<State> m_state;
};

}  // namespace testsupport
