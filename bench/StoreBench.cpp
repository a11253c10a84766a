#include <benchmark/benchmark.h>

#include <chrono>
#include <memory>
#include <string>

#include "Quillmonger/capture/PasteboardTypes.h"
#include "Quillmonger/capture/SqliteStoreContext.h"
#include "bench/BenchFolder.h"
#include "bench/IdleRunLoop.h"
#include "bench/Silence.h"

namespace {

using quillmonger::ClipboardItem;
using quillmonger::Payload;
using quillmonger::SqliteStoreContext;

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
  const BenchFolder folder;
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
  const BenchFolder folder;
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
