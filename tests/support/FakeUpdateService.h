#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "Quillmonger/update/UpdateService.h"

namespace testsupport {

/// A service that answers when the test says so, and notes what it is asked.
class FakeUpdateService final : public quillmonger::UpdateService {
 public:
  foundation::Subscription check(std::function<void(const CheckResult&)> finished) override {
    calls.emplace_back("check");
    m_checked = std::move(finished);
    return foundation::Subscription([this] {
      calls.emplace_back("end");
      m_checked = nullptr;
    });
  }
  foundation::Subscription download(const quillmonger::Update& update, std::function<void(std::uint64_t)> progressed,
                                    std::function<void(const DownloadResult&)> finished) override {
    calls.push_back("download " + update.version);
    m_progressed = std::move(progressed);
    m_downloaded = std::move(finished);
    return foundation::Subscription([this] {
      calls.emplace_back("end");
      m_progressed = nullptr;
      m_downloaded = nullptr;
    });
  }

  [[nodiscard]] bool isChecking() const { return m_checked != nullptr; }
  [[nodiscard]] bool isDownloading() const { return m_downloaded != nullptr; }
  /// Only while it is checking or downloading.
  void answer(const CheckResult& result) const {
    const auto receiver = m_checked;
    receiver(result);
  }
  void progress(std::uint64_t received) const { m_progressed(received); }
  void deliver(const DownloadResult& result) const {
    const auto receiver = m_downloaded;
    receiver(result);
  }

  std::vector<std::string> calls;

 private:
  std::function<void(const CheckResult&)> m_checked;
  std::function<void(std::uint64_t)> m_progressed;
  std::function<void(const DownloadResult&)> m_downloaded;
};

/// A version on offer.
inline quillmonger::Update updateTo(const std::string& version) {
  return {version, "What is new in " + version, *foundation::Url::parse("https://example.org/" + version + ".deb"),
          1000, std::string(64, 'a')};
}

}  // namespace testsupport
