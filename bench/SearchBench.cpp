#include <benchmark/benchmark.h>
#include <cstring>

#include <chrono>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "Defaults/Defaults.h"
#include "Platform/freedesktop/DesktopApplicationNaming.h"
#include "Platform/qt/QtBackgroundQueue.h"
#include "Platform/qt/QtPictureReading.h"
#include "Quillmonger/capture/PasteboardTypes.h"
#include "Quillmonger/history/ClipboardItemViewModel.h"
#include "Quillmonger/search/SearchManager.h"
#include "Quillmonger/settings/SettingsKeys.h"
#include "bench/BenchRunLoop.h"
#include "bench/BenchServices.h"
#include "bench/Silence.h"

// A whole search as the history runs it, from the call to the completion, over texts of random words; and the same
// bytes searched with memmem, as one piece, for the measure of what a search costs at least.

namespace {

using namespace quillmonger;
using Items = SearchItems<ClipboardItemViewModel>;

std::string randomText(std::mt19937& random, std::size_t size) {
  std::string text;
  while (text.size() < size) {
    for (auto letters = random() % 9 + 1; letters > 0; --letters)
      text.push_back(static_cast<char>('a' + random() % 20));
    text.push_back(' ');
  }
  text.resize(size);
  text.back() = '.';
  return text;
}

class History final {
 public:
  History(std::size_t count, std::size_t size) {
    std::mt19937 random(1);
    const auto application = foundation::Url::fromFilePath("/usr/share/applications/org.example.Editor.desktop");
    std::vector<std::shared_ptr<ClipboardItemViewModel>> items;
    for (std::size_t number = 0; number < count; ++number) {
      std::string text = randomText(random, size);
      all += text;
      Payload payload{{std::string(pasteboardtype::NSPasteboardTypeString), foundation::Data(std::move(text))}};
      auto record = std::make_shared<ClipboardItem>(std::move(payload), "org.example.Editor", application,
                                                    foundation::Date(std::chrono::seconds(number)));
      items.push_back(std::make_shared<ClipboardItemViewModel>(std::move(record), m_services));
    }
    m_items = Items(items);
  }

  std::size_t search(const std::string& term) {
    m_manager.search(m_items, term, [this](const auto& results) { m_results = results; });
    m_runLoop.runNext();  // the completion
    m_runLoop.runNext();  // the end of the work
    return m_results->size();
  }

  std::string all;
  defaults::UserDefaults suite;
  defaults::Defaults defaults{suite};

 private:
  platform::QtBackgroundQueue m_queue;
  BenchRunLoop m_runLoop;
  BenchClipboard m_clipboard;
  platform::DesktopEntries m_entries{std::vector<std::filesystem::path>{}};
  platform::DesktopApplicationNaming m_naming{m_entries};
  std::shared_ptr<const OculetManager> m_oculetManager = makeOculetManager();
  platform::QtPictureReading m_pictures;
  std::shared_ptr<const ClipboardItemViewModel::Services> m_services =
      std::make_shared<const ClipboardItemViewModel::Services>(
          ClipboardItemViewModel::Services{m_clipboard, defaults, m_naming, m_oculetManager, m_pictures, noText});
  SearchManager<ClipboardItemViewModel> m_manager{m_queue, m_runLoop, defaults};
  Items m_items;
  SearchResults<ClipboardItemViewModel> m_results;
};

// Letters that the texts have, in an order that they don't: the whole of each text is read.
constexpr auto term = "quartz";

enum class Kind { literal, caseSensitive, expression };

void search(benchmark::State& state, Kind kind, const char* what) {
  const Silence silence;
  History history(static_cast<std::size_t>(state.range(0)), static_cast<std::size_t>(state.range(1)));
  history.defaults.set(keys::searchCaseSensitive, kind == Kind::caseSensitive);
  history.defaults.set(keys::searchRegex, kind == Kind::expression);
  for (auto _ : state)
    benchmark::DoNotOptimize(history.search(what));
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(history.all.size()));
}

void plainScan(benchmark::State& state) {
  const Silence silence;
  const History history(static_cast<std::size_t>(state.range(0)), static_cast<std::size_t>(state.range(1)));
  for (auto _ : state)
    benchmark::DoNotOptimize(memmem(history.all.data(), history.all.size(), term, std::strlen(term)));
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(history.all.size()));
}

void sizes(benchmark::internal::Benchmark* each) {
  each->Args({1'000, 200})->Args({10'000, 200})->Args({100'000, 200})->Args({1'000, 100'000});
  each->UseRealTime()->Unit(benchmark::kMillisecond);
}

BENCHMARK(plainScan)->Apply(sizes);
BENCHMARK_CAPTURE(search, literal, Kind::literal, term)->Apply(sizes);
BENCHMARK_CAPTURE(search, caseSensitive, Kind::caseSensitive, term)->Apply(sizes);
BENCHMARK_CAPTURE(search, everyItem, Kind::literal, " ")->Apply(sizes);
BENCHMARK_CAPTURE(search, expression, Kind::expression, "q[u-z]+artz")
    ->Args({10'000, 200})
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace
