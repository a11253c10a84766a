#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "Foundation/NotificationCenter.h"
#include "Foundation/Published.h"
#include "Foundation/RunLoop.h"
#include "KeyboardShortcuts/KeyboardShortcuts.h"
#include "Quillmonger/capture/ClipboardManaging.h"
#include "Quillmonger/capture/StoreContext.h"
#include "Quillmonger/history/ApplicationNaming.h"
#include "Quillmonger/history/ClipboardItemViewModel.h"
#include "Quillmonger/history/ItemList.h"
#include "Quillmonger/input/BaseEventManager.h"
#include "Quillmonger/search/SearchManager.h"
#include "Quillmonger/search/SearchViewModel.h"

namespace quillmonger {

/// The one owner of the list that the user sees: what is in the history, what of it is shown, and what is selected.
/// Main thread.
class ClipboardViewModel final : public BaseEventManager {
 public:
  using Item = std::shared_ptr<ClipboardItemViewModel>;
  using Row = SearchResult<ClipboardItemViewModel>;
  using Rows = SearchResults<ClipboardItemViewModel>;
  using Invert = ClipboardItemViewModel::Invert;

  struct Collaborators {
    ClipboardManaging& clipboard;
    StoreContext& context;
    SearchViewModel& searchViewModel;
    SearchManager<ClipboardItemViewModel>& searchManager;
    const ApplicationNaming& applicationNaming;
    std::shared_ptr<const OculetManager> oculetManager;
    const PictureReading& pictureReading;
    foundation::TextLookup texts;
    LocalEventMonitoring& eventMonitoring;
    keyboardshortcuts::KeyboardShortcuts& shortcuts;
    foundation::RunLoop& runLoop;
    foundation::NotificationCenter& notificationCenter;
    defaults::Defaults& defaults;
  };

  /// All collaborators outlive this object. Loads the history from the store.
  explicit ClipboardViewModel(const Collaborators& collaborators);
  ClipboardViewModel(const ClipboardViewModel&) = delete;
  ClipboardViewModel& operator=(const ClipboardViewModel&) = delete;
  ~ClipboardViewModel() override;

  /// What the list shows, in its order. Never null.
  [[nodiscard]] foundation::Published<Rows>& filteredItems() { return m_filteredItems; }
  /// The highlighted row; null for none. For a moment it can be an item that has just left the history.
  [[nodiscard]] foundation::Published<Item>& selectedItem() { return m_selectedItem; }
  /// Whether the left Option key is down, as far as the program's key events tell.
  [[nodiscard]] foundation::Published<bool>& isOptionPressed() { return m_isOptionPressed; }
  /// The whole history, whatever the search shows. In no order to rely on.
  [[nodiscard]] const SearchItems<ClipboardItemViewModel>& items() const { return m_items.items(); }

  /// The term of the next search. Setting it starts none.
  void setSearchTerm(std::string term) { m_searchTerm = std::move(term); }
  /// Searches the whole history for the term. The rows, and then the selection of the top row, follow in a later turn;
  /// a search that was still on its way is dropped.
  void search();

  /// Selects the top row, or nothing when there are no rows.
  void selectFirstItem();
  /// Selects an item that was clicked. Nothing happens for one that is no longer in the history.
  void select(const Item& item);

  /// Deletes an item from the history and the store. If it is selected, the row below is then, or the last one. Nothing
  /// happens for one that is no longer in the history.
  void deleteItem(const Item& item);
  /// Empties the history and the store.
  void deleteAllItems();

  bool handleAction(Action action, const KeyEvent& event) override;

 private:
  using Record = ClipboardManaging::Record;

  void bindPipelines();
  void bindQuickPaste();
  void post(std::function<void()> work);
  [[nodiscard]] Item makeItem(const Record& record) const;
  void fetchItems();
  void addItem(const Record& record);
  void removeDuplicate(const Record& record);
  void applySearchResults(const Rows& rows);
  void cleanUpHistory();
  void perform(Action action, const KeyEvent& event);
  void performSelect(const KeyEvent& event);
  void deleteSelectedItem();
  void selectNextItem();
  void selectPreviousItem();
  void pasteItem(int index, Invert invert);
  [[nodiscard]] Item itemAt(std::size_t row) const;  // null beyond the rows
  [[nodiscard]] std::optional<std::size_t> rowOf(const Item& item) const;
  void removeRow(std::size_t row);
  void removeFromRows(const Item& item);

  Collaborators m_with;
  std::shared_ptr<const ClipboardItemViewModel::Services> m_itemServices;
  ItemList m_items;
  std::string m_searchTerm;
  foundation::Published<Rows> m_filteredItems;
  foundation::Published<Item> m_selectedItem;
  foundation::Published<bool> m_isOptionPressed{false};
  std::shared_ptr<const bool> m_isAlive = std::make_shared<const bool>(true);
  std::shared_ptr<const bool> m_latestSearch;  // expires with the next search, and with this object
  std::vector<foundation::Subscription> m_subscriptions;
};

}  // namespace quillmonger
