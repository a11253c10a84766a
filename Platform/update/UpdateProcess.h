#pragma once

#include <filesystem>
#include <string>

#include "Quillmonger/update/UpdateFeed.h"
#include "Quillmonger/update/UpdateService.h"

class QProcess;

namespace platform {

/// The update service by a small program of its own (helper/main.cpp): the network library is loaded there, and only
/// while it is needed. Main thread, after the application object.
class UpdateProcess final : public quillmonger::UpdateService {
 public:
  struct Description {
    /// The program.
    std::filesystem::path program;
    quillmonger::UpdateFeed feed;
    /// Of the program that runs.
    std::string ownVersion;
    /// Where files are stored: a folder of the program's own. Made when the first one is.
    std::filesystem::path folder;
  };

  explicit UpdateProcess(Description description) : m_with(std::move(description)) {}

  foundation::Subscription check(std::function<void(const CheckResult&)> finished) override;
  foundation::Subscription download(const quillmonger::Update& update,
                                    std::function<void(std::uint64_t received)> progressed,
                                    std::function<void(const DownloadResult&)> finished) override;

 private:
  Description m_with;
};

}  // namespace platform
