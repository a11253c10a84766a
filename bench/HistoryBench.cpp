#include <benchmark/benchmark.h>

#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include "Defaults/Defaults.h"
#include "Platform/freedesktop/DesktopApplicationNaming.h"
#include "Platform/qt/QtBackgroundQueue.h"
#include "Platform/qt/QtPictureReading.h"
#include "Quillmonger/capture/PasteboardTypes.h"
#include "Quillmonger/capture/SqliteStoreContext.h"
#include "Quillmonger/history/ClipboardViewModel.h"
#include "Quillmonger/history/view/HistoryListModel.h"
#include "Quillmonger/settings/SettingsKeys.h"
#include "bench/BenchFolder.h"
#include "bench/BenchRunLoop.h"
#include "bench/BenchServices.h"
#include "bench/Silence.h"

// The main thread's part of a copy, with the store, the history and the list's model as the program has them.

namespace {

using namespace quillmonger;

class History final {
 public:
  explicit History(std::int64_t count) {
    m_defaults.set(keys::historySize, count);
    for (std::int64_t number = 0; number < count; ++number)
      m_context->insert(makeRecord(number));
    m_viewModel = std::make_unique<ClipboardViewModel>(ClipboardViewModel::Collaborators{
        clipboard, *m_context, m_searchViewModel, m_searchManager, m_naming, m_oculetManager, m_pictures, noText,
        m_keyEvents, m_shortcuts, m_runLoop, m_notificationCenter, m_defaults});
    m_rows = m_viewModel->filteredItems().follow([this](const auto& rows) { m_model.setRows(rows); });
    m_runLoop.runUntil([this, count] { return m_model.rowCount() == count; });
    m_runLoop.runDelayed();
    m_runLoop.forgetLongestTurn();
    m_next = count;
  }

  void addNew() { finish(makeRecord(m_next++)); }

  void addAgain() {
    const auto older =
        m_viewModel->items().all()[static_cast<std::size_t>(m_next++ * 37) % m_viewModel->items().size()];
    clipboard.duplicateItemPublisher().send(older->item());
    auto attributes = older->item()->attributes();
    attributes.id = foundation::Uuid::random();
    attributes.creationDate = foundation::Date(std::chrono::seconds(m_next++));
    finish(std::make_shared<ClipboardItem>(older->item()->data(), attributes));
  }

  [[nodiscard]] double longestTurn() const { return m_runLoop.longestTurn().count(); }

 private:
  static std::shared_ptr<ClipboardItem> makeRecord(std::int64_t number) {
    std::string text = std::to_string(number) + " ";
    text.resize(200, 'x');
    Payload payload{{std::string(pasteboardtype::NSPasteboardTypeString), foundation::Data(std::move(text))}};
    return std::make_shared<ClipboardItem>(std::move(payload), "org.example.Editor", std::nullopt,
                                           foundation::Date(std::chrono::seconds(number)));
  }

  void finish(const std::shared_ptr<ClipboardItem>& record) {
    clipboard.newItemPublisher().send(record);
    m_runLoop.runUntil([&] { return m_viewModel->filteredItems().value()->front().item->item() == record; });
    m_runLoop.runNext();  // the end of the search's work
    m_runLoop.runDelayed();
  }

  BenchClipboard clipboard;
  BenchFolder m_folder;
  BenchRunLoop m_runLoop;
  defaults::UserDefaults m_suite;
  defaults::Defaults m_defaults{m_suite};
  std::unique_ptr<SqliteStoreContext> m_context =
      std::move(SqliteStoreContext::open(m_folder.path(), m_runLoop).value());
  platform::QtBackgroundQueue m_queue;
  platform::DesktopEntries m_entries{std::vector<std::filesystem::path>{}};
  platform::DesktopApplicationNaming m_naming{m_entries};
  std::shared_ptr<const OculetManager> m_oculetManager = makeOculetManager();
  platform::QtPictureReading m_pictures;
  NoKeyEvents m_keyEvents;
  NoHotKeys m_hotKeys;
  const NoSymbolicHotKeys m_symbolicHotKeys;
  foundation::NotificationCenter m_notificationCenter;
  keyboardshortcuts::KeyboardShortcuts m_shortcuts{m_hotKeys, m_symbolicHotKeys, m_suite, m_notificationCenter};
  SearchViewModel m_searchViewModel{m_runLoop, m_defaults};
  SearchManager<ClipboardItemViewModel> m_searchManager{m_queue, m_runLoop, m_defaults};
  std::unique_ptr<ClipboardViewModel> m_viewModel;
  ItemInspection m_inspection{m_queue, m_runLoop};
  HistoryListModel m_model{m_inspection};
  foundation::Subscription m_rows;
  std::int64_t m_next = 0;
};

template <void (History::*add)()>
void addTo(benchmark::State& state) {
  const Silence silence;
  History history(state.range(0));
  for (auto _ : state)
    (history.*add)();
  state.counters["longest turn, ms"] = history.longestTurn();
}

BENCHMARK(addTo<&History::addNew>)->Arg(1'000)->Arg(100'000)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(addTo<&History::addAgain>)->Arg(1'000)->Arg(100'000)->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace
