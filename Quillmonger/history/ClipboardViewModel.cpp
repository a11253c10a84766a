#include "Quillmonger/history/ClipboardViewModel.h"

#include <algorithm>
#include <utility>

#include "Defaults/Defaults.h"
#include "Foundation/Output.h"
#include "Quillmonger/input/ShortcutNames.h"
#include "Quillmonger/settings/SettingsKeys.h"

namespace quillmonger {

namespace {

constexpr foundation::Seconds cleanupInterval{0.5};

}  // namespace

ClipboardViewModel::ClipboardViewModel(const Collaborators& collaborators)
    : BaseEventManager(collaborators.eventMonitoring),
      m_with(collaborators),
      m_itemServices(std::make_shared<const ClipboardItemViewModel::Services>(ClipboardItemViewModel::Services{
          collaborators.clipboard, collaborators.defaults, collaborators.applicationNaming, collaborators.oculetManager,
          collaborators.pictureReading, collaborators.texts})),
      m_filteredItems(std::make_shared<const SearchResultList<ClipboardItemViewModel>>()) {
  bindPipelines();
  bindQuickPaste();
  fetchItems();
  m_subscriptions.push_back(m_with.runLoop.every(cleanupInterval, [this] { cleanUpHistory(); }));
}

ClipboardViewModel::~ClipboardViewModel() {
  const auto& names = shortcutname::quickPaste();
  m_with.shortcuts.disable({names.begin(), names.end()});
}

// The monitor sends within its poll; the work is done in a later turn, in the order of the sends.
void ClipboardViewModel::bindPipelines() {
  m_subscriptions.push_back(m_with.clipboard.newItemPublisher().subscribe([this](const Record& record) {
    post([this, record] {
      foundation::printLine("ClipboardNewItemReceiver: received a record");
      addItem(record);
    });
  }));
  m_subscriptions.push_back(m_with.clipboard.duplicateItemPublisher().subscribe([this](const Record& record) {
    post([this, record] {
      foundation::printLine("ClipboardDuplicateItemReceiver: received a record");
      removeDuplicate(record);
    });
  }));
  m_subscriptions.push_back(m_with.searchViewModel.debouncedSearchTerm().follow([this](const std::string& term) {
    foundation::printLine("DebouncedSearchTerm: received a term");
    setSearchTerm(term);
    search();
  }));
}

void ClipboardViewModel::bindQuickPaste() {
  const auto& names = shortcutname::quickPaste();
  for (std::size_t row = 0; row < names.size(); ++row) {
    m_with.shortcuts.declare(names[row]);
    m_subscriptions.push_back(
        m_with.shortcuts.onKeyDown(names[row], [this, row] { pasteItem(static_cast<int>(row), Invert::no); }));
  }
  m_subscriptions.push_back(
      m_with.defaults.updates(keys::quickPaste, defaults::Defaults::Initial::yes, [this](bool isOn) {
        const auto& all = shortcutname::quickPaste();
        if (isOn) {
          m_with.shortcuts.enable({all.begin(), all.end()});
        } else {
          m_with.shortcuts.disable({all.begin(), all.end()});
        }
      }));
}

// Runs `work` in a later turn, unless this object is gone by then.
void ClipboardViewModel::post(std::function<void()> work) {
  m_with.runLoop.post([work = std::move(work), isAlive = std::weak_ptr(m_isAlive)] {
    if (!isAlive.expired()) work();
  });
}

ClipboardViewModel::Item ClipboardViewModel::makeItem(const Record& record) const {
  return std::make_shared<ClipboardItemViewModel>(record, m_itemServices);
}

void ClipboardViewModel::fetchItems() {
  const auto records = m_with.context.fetchAll();
  if (!records) {
    foundation::printLine("ClipboardViewModel: could not fetch clipboard items from store: ", records.error().message);
    return;
  }
  std::vector<Item> batch;
  batch.reserve(records.value().size());
  for (const auto& record : records.value())
    batch.push_back(makeItem(record));
  m_items.insertFirst(batch);
  search();
  foundation::printLine("Total clipboard items in history = ", std::to_string(m_items.count()));
}

void ClipboardViewModel::addItem(const Record& record) {
  m_with.context.insert(record);
  m_items.insertFirst({makeItem(record)});
  search();
}

void ClipboardViewModel::removeDuplicate(const Record& record) {
  m_with.context.remove(record);
  const auto item = m_items.firstEqualTo(*record);
  if (!item) return;
  m_items.remove(*item);
  const auto row = rowOf(item);
  if (row) removeRow(*row);
}

void ClipboardViewModel::search() {
  // Whoever holds an earlier one has lost its turn.
  const auto latest = std::make_shared<const bool>(true);
  m_latestSearch = latest;
  m_with.searchManager.search(m_items.items(), m_searchTerm,
                              [this, isLatest = std::weak_ptr(latest)](const Rows& rows) {
                                if (!isLatest.expired()) applySearchResults(rows);
                              });
}

void ClipboardViewModel::applySearchResults(const Rows& rows) {
  m_filteredItems.set(rows);
  const auto first = itemAt(0);
  if (m_selectedItem.value() != first) m_selectedItem.set(first);
}

void ClipboardViewModel::cleanUpHistory() {
  const auto limit = std::max<std::int64_t>(0, m_with.defaults[keys::historySize]);
  const auto count = static_cast<std::int64_t>(m_items.count());
  if (count <= limit) return;
  for (const auto& item : m_items.removeLast(static_cast<std::size_t>(count - limit)))
    m_with.context.remove(item->item());
  search();
}

void ClipboardViewModel::deleteAllItems() {
  const auto records = m_with.context.fetchAll();
  if (!records) {
    foundation::printLine("could not delete all items: ", records.error().message);
    return;
  }
  for (const auto& record : records.value())
    m_with.context.remove(record);
  m_items.removeAll();
  search();
}

void ClipboardViewModel::deleteSelectedItem() {
  const auto selected = m_selectedItem.value();
  if (!selected) return;
  m_with.context.remove(selected->item());
  removeFromRows(selected);
  m_items.remove(*selected);
}

void ClipboardViewModel::deleteItem(const Item& item) {
  if (!m_items.contains(*item)) return;
  m_with.context.remove(item->item());
  removeFromRows(item);
  m_items.remove(*item);
}

void ClipboardViewModel::removeFromRows(const Item& item) {
  const auto row = rowOf(item);
  if (!row) return;
  const bool isSelected = m_selectedItem.value() == item;
  const bool isLast = *row + 1 == m_filteredItems.value()->size();
  const auto next = isLast ? itemAt(*row - 1) : itemAt(*row + 1);
  removeRow(*row);
  if (isSelected) m_selectedItem.set(next);
}

void ClipboardViewModel::selectFirstItem() { m_selectedItem.set(itemAt(0)); }

void ClipboardViewModel::select(const Item& item) {
  if (item && m_items.contains(*item)) m_selectedItem.set(item);
}

void ClipboardViewModel::selectNextItem() {
  const auto row = rowOf(m_selectedItem.value());
  const auto next = row ? itemAt(*row + 1) : nullptr;
  m_selectedItem.set(next ? next : itemAt(0));
}

void ClipboardViewModel::selectPreviousItem() {
  const auto row = rowOf(m_selectedItem.value());
  const auto previous = row && *row > 0 ? *row - 1 : m_filteredItems.value()->size() - 1;
  m_selectedItem.set(itemAt(previous));
}

void ClipboardViewModel::pasteItem(int index, Invert invert) {
  const auto item = itemAt(static_cast<std::size_t>(index));
  if (item) item->paste(invert);
}

ClipboardViewModel::Item ClipboardViewModel::itemAt(std::size_t row) const {
  const auto& rows = *m_filteredItems.value();
  return row < rows.size() ? rows.at(row).item->shared_from_this() : nullptr;
}

std::optional<std::size_t> ClipboardViewModel::rowOf(const Item& item) const {
  return m_filteredItems.value()->rowOf(item.get());
}

void ClipboardViewModel::removeRow(std::size_t row) {
  m_filteredItems.set(m_filteredItems.value()->without(row, row + 1));
}

bool ClipboardViewModel::handleAction(Action action, const KeyEvent& event) {
  switch (action) {
    case Action::select:
    case Action::deleteItem:
    case Action::moveDown:
    case Action::moveUp:
    case Action::optionChanged:
      post([this, action, event] { perform(action, event); });
      return true;
    case Action::openSettings:
    case Action::dismiss:
    case Action::none:
      break;
  }
  return false;
}

void ClipboardViewModel::perform(Action action, const KeyEvent& event) {
  if (action == Action::select) performSelect(event);
  if (action == Action::deleteItem) {
    deleteSelectedItem();
    m_with.notificationCenter.post("ItemDeleted");
  }
  if (action == Action::moveDown) selectNextItem();
  if (action == Action::moveUp) selectPreviousItem();
  if (action == Action::optionChanged) m_isOptionPressed.set((event.modifierFlags & optionFlag) != 0);
}

void ClipboardViewModel::performSelect(const KeyEvent& event) {
  const auto invert = m_isOptionPressed.value() ? Invert::yes : Invert::no;
  const int index = quickPasteIndex(event.keyCode);
  if (index >= 0) {
    pasteItem(index, invert);
  } else if (const auto selected = m_selectedItem.value()) {
    selected->paste(invert);
  }
}

}  // namespace quillmonger
