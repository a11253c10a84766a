#include <benchmark/benchmark.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <memory>
#include <string>

#include "Quillmonger/capture/PasteboardTypes.h"
#include "Quillmonger/capture/SqliteStoreContext.h"
#include "bench/IdleRunLoop.h"

// Where the store's folders are made says which disk is measured: TMPDIR, else the working folder.

namespace {

using quillmonger::ClipboardItem;
using quillmonger::Payload;
using quillmonger::SqliteStoreContext;

class Folder final {
 public:
  Folder() {
    const char* const place = std::getenv("TMPDIR");
    m_path = std::filesystem::path(place != nullptr ? place : ".") / ("store-bench-" + std::to_string(getpid()));
    std::filesystem::remove_all(m_path);
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  ~Folder() { std::filesystem::remove_all(m_path); }
  [[nodiscard]] const std::filesystem::path& path() const { return m_path; }

 private:
  std::filesystem::path m_path;
};

/// Keeps the farewell lines of thousands of records out of the figures.
class Silence final {
 public:
  Silence() { std::cout.setstate(std::ios::failbit); }
  Silence(const Silence&) = delete;
  Silence& operator=(const Silence&) = delete;
  ~Silence() { std::cout.clear(); }
};

Payload textPayload(std::int64_t number, std::size_t size) {
  std::string text = std::to_string(number) + " ";
  text.resize(size, 'x');
  return {{std::string(quillmonger::pasteboardtype::NSPasteboardTypeString), foundation::Data(std::move(text))}};
}

std::shared_ptr<ClipboardItem> makeRecord(std::int64_t number, std::size_t size) {
  return std::make_shared<ClipboardItem>(textPayload(number, size), "org.example.Editor", std::nullopt,
                                         foundation::Date(std::chrono::seconds(number)));
}

void digest(benchmark::State& state) {
  const auto size = static_cast<std::size_t>(state.range(0));
  const Payload payload = textPayload(0, size);
  for (auto _ : state)
    benchmark::DoNotOptimize(quillmonger::payloadDigest(payload));
  state.SetBytesProcessed(state.iterations() * state.range(0));
}

void insertAndSave(benchmark::State& state) {
  const Silence silence;
  const Folder folder;
  IdleRunLoop loop;
  auto store = std::move(SqliteStoreContext::open(folder.path(), loop).value());
  std::int64_t number = 0;
  for (auto _ : state) {
    store->insert(makeRecord(number++, static_cast<std::size_t>(state.range(0))));
    if (!store->save()) state.SkipWithError("the store could not be saved");
  }
  state.SetBytesProcessed(state.iterations() * state.range(0));
}

void openAndFetchAll(benchmark::State& state) {
  const Silence silence;
  const Folder folder;
  IdleRunLoop loop;
  {
    auto store = std::move(SqliteStoreContext::open(folder.path(), loop).value());
    for (std::int64_t i = 0; i < state.range(0); ++i)
      store->insert(makeRecord(i, 200));
    if (!store->save()) state.SkipWithError("the store could not be saved");
  }
  for (auto _ : state) {
    auto store = std::move(SqliteStoreContext::open(folder.path(), loop).value());
    benchmark::DoNotOptimize(store->fetchAll().value().size());
    state.PauseTiming();
    store.reset();
    state.ResumeTiming();
  }
}

BENCHMARK(digest)->Arg(1'000)->Arg(100'000)->Arg(10'000'000);
BENCHMARK(insertAndSave)->Arg(1'000)->Arg(100'000)->Arg(10'000'000)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(openAndFetchAll)->Arg(1'000)->Arg(10'000)->Arg(100'000)->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace
