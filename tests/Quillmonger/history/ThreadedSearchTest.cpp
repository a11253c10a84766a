#include <gtest/gtest.h>

#include <string>

#include "Quillmonger/history/ClipboardViewModel.h"
#include "Quillmonger/settings/SettingsKeys.h"
#include "tests/support/FakeHotKeyService.h"
#include "tests/support/FakeLocalEventMonitor.h"
#include "tests/support/FakeStoreContext.h"
#include "tests/support/FakeSymbolicHotKeys.h"
#include "tests/support/ItemServices.h"
#include "tests/support/Records.h"
#include "tests/support/ThreadedBackgroundQueue.h"
#include "tests/support/VirtualRunLoop.h"

namespace {

using namespace quillmonger;
using testsupport::makeRecord;

TEST(ThreadedSearch, RunsBesideAHistoryThatChanges) {
  testsupport::VirtualRunLoop runLoop;
  testsupport::ItemServices services;
  auto& settings = services.settings;
  auto& clipboard = services.clipboard;
  settings.defaults.set(keys::historySize, 10000);
  testsupport::ThreadedBackgroundQueue queue;
  testsupport::FakeStoreContext context;
  testsupport::FakeLocalEventMonitor eventMonitor;
  testsupport::FakeHotKeyService hotKeys;
  const testsupport::FakeSymbolicHotKeys symbolicHotKeys;
  foundation::NotificationCenter notificationCenter;
  keyboardshortcuts::KeyboardShortcuts shortcuts(hotKeys, symbolicHotKeys, settings.suite, notificationCenter);
  SearchViewModel searchViewModel(runLoop, settings.defaults);
  SearchManager<ClipboardItemViewModel> searchManager(queue, runLoop, settings.defaults);
  for (int age = 0; age < 600; ++age)
    context.insert(makeRecord("text " + std::to_string(age), foundation::Seconds(age)));
  ClipboardViewModel viewModel({clipboard, context, searchViewModel, searchManager, services.naming,
                                services.oculetManager, services.pictures, testsupport::englishText, eventMonitor,
                                shortcuts, runLoop, notificationCenter, settings.defaults});

  for (int round = 0; round < 20; ++round) {
    viewModel.setSearchTerm(round % 2 == 0 ? "text" : "");
    viewModel.search();
    clipboard.duplicateItemPublisher().send(context.records().front());
    clipboard.newItemPublisher().send(
        makeRecord("text new " + std::to_string(round), foundation::Seconds(1000 + round)));
    runLoop.runPosted();
    if (const auto item = viewModel.selectedItem().value()) item->paste(ClipboardItemViewModel::Invert::no);
  }
  queue.wait();
  runLoop.runPosted();

  EXPECT_EQ(viewModel.filteredItems().value()->size(), 600U);
  EXPECT_EQ(viewModel.selectedItem().value()->text().view, "text new 19");
}

}  // namespace
