#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <thread>

#include "Quillmonger/capture/PasteboardTypes.h"
#include "Quillmonger/capture/SqliteStoreContext.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/VirtualRunLoop.h"

namespace quillmonger {

/// A store in a folder of its own that can be closed and opened anew.
class StoreFixture : public testing::Test {
 protected:
  using Record = StoreContext::Record;
  using Files = std::map<std::string, std::string>;

  [[nodiscard]] std::filesystem::path folder() const { return temporary.path() / "quillmonger"; }
  [[nodiscard]] std::filesystem::path file() const { return folder() / "history.sqlite"; }

  void open() {
    auto opened = SqliteStoreContext::open(folder(), loop);
    ASSERT_TRUE(opened) << opened.error().message;
    store = std::move(opened.value());
  }
  void close() { store.reset(); }
  void reopen() {
    close();
    open();
  }
  [[nodiscard]] std::string openingError() {
    auto opened = SqliteStoreContext::open(folder(), loop);
    return opened ? std::string() : opened.error().message;
  }
  [[nodiscard]] std::vector<Record> records() { return store->fetchAll().value(); }

  /// Runs what other threads post until the condition holds; false after ten seconds without it.
  bool runUntil(const std::function<bool()>& condition) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while (!condition()) {
      if (std::chrono::steady_clock::now() > deadline) return false;
      loop.runPosted();
      std::this_thread::yield();
    }
    return true;
  }

  /// The store's files by name, without the lock and the log's index, which hold no content.
  [[nodiscard]] Files files() const {
    Files files;
    for (const auto& entry : std::filesystem::directory_iterator(folder())) {
      const auto name = entry.path().filename().string();
      if (name == "history.lock" || name == "history.sqlite-shm") continue;
      std::ostringstream content;
      content << std::ifstream(entry.path(), std::ios::binary).rdbuf();
      files[name] = std::move(content).str();
    }
    return files;
  }
  [[nodiscard]] bool isInFiles(const std::string& secret) const { return isIn(files(), secret); }
  [[nodiscard]] static bool isIn(const Files& files, const std::string& secret) {
    for (const auto& [name, content] : files) {
      if (content.find(secret) != std::string::npos) return true;
    }
    return false;
  }

  static Record makeRecord(Payload payload, int second = 0) {
    return std::make_shared<ClipboardItem>(std::move(payload), std::nullopt, std::nullopt,
                                           testsupport::VirtualRunLoop::startDate() + std::chrono::seconds(second));
  }
  static Payload text(const std::string& text) {
    return {{std::string(pasteboardtype::NSPasteboardTypeString), foundation::Data(text)}};
  }
  static std::string bytesOf(const Record& record, std::string_view type = pasteboardtype::NSPasteboardTypeString) {
    const auto data = record->data(type);
    const auto bytes = data ? data->bytes() : nullptr;
    return bytes ? *bytes : "absent";
  }
  /// Bytes of some size that differ for each seed and throughout.
  static std::string largeBytes(std::size_t size, const std::string& seed) {
    std::string bytes;
    bytes.reserve(size + 64);
    while (bytes.size() < size)
      bytes += seed + std::to_string(bytes.size()) + ";";
    bytes.resize(size);
    return bytes;
  }

  testsupport::TemporaryFolder temporary;
  testsupport::VirtualRunLoop loop;
  std::unique_ptr<SqliteStoreContext> store;
};

}  // namespace quillmonger
