// quillmonger-update check FEED KEY VERSION: asks the feed, and prints what it offers that is newer than VERSION.
// quillmonger-update download URL LENGTH SHA256 FILE: fetches the file, and prints how many bytes of it are there.
// The network, and all that comes from it, stays in this process: the one that holds the history has neither.

#include <charconv>
#include <csignal>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "Platform/update/helper/FileDigest.h"
#include "Platform/update/helper/HttpsTransfer.h"
#include "Quillmonger/update/UpdateAnswer.h"
#include "Quillmonger/update/feed/Appcast.h"
#include "Quillmonger/update/feed/SignedFeed.h"

namespace {

namespace appcast = quillmonger::appcast;
using quillmonger::UpdateFailure;

constexpr int notUnderstood = 2;

int fail(UpdateFailure failure, std::string_view reason) {
  std::cerr << "quillmonger-update: " << reason << '\n';
  return quillmonger::updateanswer::exitCode(failure);
}

int check(const std::string& address, const quillmonger::PublicKey& key, const quillmonger::SoftwareVersion& own) {
  std::string feed;
  bool isTooLong = false;
  const auto outcome = platform::HttpsTransfer().fetch(address, [&](std::string_view bytes) {
    isTooLong = feed.size() + bytes.size() > quillmonger::feedSizeLimit;
    if (!isTooLong) feed += bytes;
    return !isTooLong;
  });
  if (isTooLong) return fail(UpdateFailure::untrusted, "the feed is too long");
  if (!outcome) return fail(UpdateFailure::unreachable, outcome.error().message);
  const auto content = quillmonger::signedPart(feed, key);
  if (!content) return fail(UpdateFailure::untrusted, "the feed is not signed by the key");
  const auto updates = appcast::parse(*content);
  if (!updates) return fail(UpdateFailure::untrusted, "the feed is damaged");
  std::cout << quillmonger::updateanswer::encode(appcast::newest(*updates, own)) << std::flush;
  return 0;
}

struct Download {
  std::string url;
  std::uint64_t length;
  std::string sha256;
  std::filesystem::path file;
};

int fetchInto(const Download& download, const std::filesystem::path& part) {
  std::ofstream file(part, std::ios::binary | std::ios::trunc);
  std::uint64_t received = 0;
  const auto outcome = platform::HttpsTransfer().fetch(download.url, [&](std::string_view bytes) {
    received += bytes.size();
    if (received > download.length || !file.write(bytes.data(), static_cast<std::streamsize>(bytes.size())))
      return false;
    std::cout << received << std::endl;
    return true;
  });
  file.close();
  if (received > download.length) return fail(UpdateFailure::damaged, "the file is longer than announced");
  if (!file) return fail(UpdateFailure::notWritten, "the file can't be written");
  if (!outcome) return fail(UpdateFailure::unreachable, outcome.error().message);
  return 0;
}

int download(const Download& download) {
  if (platform::sha256OfFile(download.file) == download.sha256) return 0;
  // It lies under its name only when it is what was announced.
  auto part = download.file;
  part += quillmonger::updateanswer::partSuffix;
  int code = fetchInto(download, part);
  std::error_code error;
  if (code == 0 && platform::sha256OfFile(part) != download.sha256)
    code = fail(UpdateFailure::damaged, "the file is not the one that was announced");
  if (code == 0) {
    std::filesystem::rename(part, download.file, error);
    if (!error) return 0;
    code = fail(UpdateFailure::notWritten, error.message());
  }
  std::filesystem::remove(part, error);
  return code;
}

int run(const std::vector<std::string>& words) {
  if (words.size() == 4 && words[0] == "check") {
    const auto key = quillmonger::parsePublicKey(words[2]);
    const auto own = quillmonger::SoftwareVersion::parse(words[3]);
    if (key && own) return check(words[1], *key, *own);
  }
  if (words.size() == 5 && words[0] == "download") {
    std::uint64_t length = 0;
    const auto end = std::from_chars(words[2].data(), words[2].data() + words[2].size(), length).ptr;
    if (end == words[2].data() + words[2].size()) return download({words[1], length, words[3], words[4]});
  }
  return notUnderstood;
}

}  // namespace

int main(int argc, char** argv) {
  // Whoever reads the output may go away; the transfer notices.
  std::signal(SIGPIPE, SIG_IGN);
  return run({argv + 1, argv + argc});
}
