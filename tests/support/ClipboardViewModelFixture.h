#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "Quillmonger/history/ClipboardViewModel.h"
#include "Quillmonger/settings/SettingsKeys.h"
#include "tests/support/FakeHotKeyService.h"
#include "tests/support/FakeLocalEventMonitor.h"
#include "tests/support/FakeStoreContext.h"
#include "tests/support/FakeSymbolicHotKeys.h"
#include "tests/support/InlineBackgroundQueue.h"
#include "tests/support/ItemServices.h"
#include "tests/support/Records.h"
#include "tests/support/VirtualRunLoop.h"

namespace testsupport {

/// A history on ports without a desktop. Searches run when the test lets them.
class ClipboardViewModelFixture : public testing::Test, protected ItemServices {
 protected:
  using Texts = std::vector<std::string>;
  using Record = quillmonger::ClipboardManaging::Record;

  ClipboardViewModelFixture() { settings.defaults.set(quillmonger::keys::historySize, 1000); }

  void makeViewModel() {
    viewModel.emplace(quillmonger::ClipboardViewModel::Collaborators{
        clipboard, context, searchViewModel, searchManager, naming, oculetManager, pictures, englishText, eventMonitor,
        shortcuts, runLoop, notificationCenter, settings.defaults});
    settle();
  }
  // The records stand in the store when the view model is made, oldest first.
  void startWith(const Texts& texts) {
    for (const auto& text : texts)
      context.insert(makeRecord(text, nextAge()));
    makeViewModel();
  }
  foundation::Seconds nextAge() { return foundation::Seconds(++age); }
  void settle() {
    runLoop.runPosted();
    queue.run();
    runLoop.runPosted();
  }
  Record add(const std::string& text) {
    auto record = makeRecord(text, nextAge());
    clipboard.newItemPublisher().send(record);
    return record;
  }
  void type(const std::string& term) {
    searchViewModel.searchTerm().set(term);
    runLoop.advance(std::chrono::milliseconds(150));
    settle();
  }
  bool press(std::uint16_t keyCode, std::uint32_t flags = 0) {
    const bool isSwallowed = eventMonitor.press(keyCode, flags);
    settle();
    return isSwallowed;
  }
  static std::string textOf(const quillmonger::ClipboardViewModel::Item& item) {
    return item ? std::string(item->text().view) : "(none)";
  }
  Texts rows() {
    Texts texts;
    for (const auto* item : viewModel->filteredItems().value()->found())
      texts.emplace_back(item->text().view);
    return texts;
  }
  Texts items() {
    Texts texts;
    for (const auto& item : viewModel->items().all())
      texts.push_back(textOf(item));
    return texts;
  }
  Texts stored() {
    Texts texts;
    for (const auto& record : context.records())
      texts.push_back(*record->data("public.utf8-plain-text")->bytes());
    return texts;
  }
  std::string selected() { return textOf(viewModel->selectedItem().value()); }
  void select(std::size_t row) {
    viewModel->select(viewModel->filteredItems().value()->at(row).item->shared_from_this());
  }

  VirtualRunLoop runLoop;
  InlineBackgroundQueue queue;
  FakeStoreContext context;
  FakeLocalEventMonitor eventMonitor;
  FakeHotKeyService hotKeys;
  FakeSymbolicHotKeys symbolicHotKeys;
  foundation::NotificationCenter notificationCenter;
  keyboardshortcuts::KeyboardShortcuts shortcuts{hotKeys, symbolicHotKeys, settings.suite, notificationCenter};
  quillmonger::SearchViewModel searchViewModel{runLoop, settings.defaults};
  quillmonger::SearchManager<quillmonger::ClipboardItemViewModel> searchManager{queue, runLoop, settings.defaults};
  std::optional<quillmonger::ClipboardViewModel> viewModel;
  int age = 0;
};

}  // namespace testsupport
