#pragma once

#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "Foundation/Published.h"
#include "Quillmonger/history/view/ClipboardViewAdapter.h"
#include "Quillmonger/history/view/HistorySettings.h"
#include "Quillmonger/resources/Appearance.h"
#include "Quillmonger/search/view/SearchBarModel.h"
#include "tests/support/InlineBackgroundQueue.h"
#include "tests/support/ItemServices.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/VirtualRunLoop.h"

namespace testsupport {

/// Adds the shown items with this accessibility identifier, from `item` down its tree.
void collect(QQuickItem* item, const QString& identifier, std::vector<QQuickItem*>& found);

/// The history window's real views on state that the caller sets. Needs the application object.
class ViewStage final {
 public:
  using Item = std::shared_ptr<quillmonger::ClipboardItemViewModel>;
  using Row = quillmonger::SearchResult<quillmonger::ClipboardItemViewModel>;

  ViewStage();
  ~ViewStage();

  /// An item of one type, copied from an application of this name, if any.
  Item makeItem(std::string bytes, std::string_view type = "public.utf8-plain-text", const std::string& appName = {});
  /// Puts items into the history and shows them all; the first one is selected.
  void show(const std::vector<Item>& items);
  /// What a finished search leaves in the list.
  void showRows(std::vector<Row> rows);
  void select(std::size_t row);

  defaults::Defaults& defaults() { return m_itemServices.settings.defaults; }
  FakePictureReading& pictures() { return m_itemServices.pictures; }
  quillmonger::ItemInspection& inspection() { return m_inspection; }
  /// Lets the work beside the main thread be done.
  void finishWork();
  foundation::Published<std::string>& searchTerm() { return m_searchTerm; }
  foundation::Published<bool>& isOptionPressed() { return m_isOptionPressed; }
  FakeClipboard& clipboard() { return m_itemServices.clipboard; }
  void setClipboardText(std::string text) { m_clipboardText = std::move(text); }
  /// What the search bar has asked of the preview: "toggle", "copy", "select all", "scroll" with the pages.
  [[nodiscard]] const std::vector<std::string>& previewCommands() const { return m_previewCommands; }
  void setPreviewSelection(bool isThere) { m_hasPreviewSelection = isThere; }
  quillmonger::ClipboardViewAdapter& adapter() { return *m_adapter; }

  /// Builds the view tree, once, and lays it out.
  QQuickView& view();
  /// The first item with this accessibility identifier that is shown; null when none is.
  QQuickItem* find(const QString& identifier);
  /// All of them, from top to bottom.
  std::vector<QQuickItem*> findAll(const QString& identifier);
  QImage picture();

 private:
  [[nodiscard]] std::optional<foundation::Url> application(const std::string& name);

  TemporaryFolder m_folder;
  ItemServices m_itemServices;
  std::vector<Item> m_shownItems;
  foundation::Published<quillmonger::HistoryListModel::Rows> m_rows{
      std::make_shared<const quillmonger::SearchResultList<quillmonger::ClipboardItemViewModel>>()};
  foundation::Published<Item> m_selectedItem;
  foundation::Published<bool> m_isOptionPressed{false};
  foundation::Published<std::string> m_searchTerm;
  std::string m_clipboardText;
  InlineBackgroundQueue m_queue;
  VirtualRunLoop m_runLoop;
  quillmonger::ItemInspection m_inspection{m_queue, m_runLoop};
  std::vector<std::string> m_previewCommands;
  bool m_hasPreviewSelection = false;
  quillmonger::Appearance m_appearance;
  quillmonger::HistorySettings m_settings;
  std::unique_ptr<quillmonger::ClipboardViewAdapter> m_adapter;
  std::unique_ptr<quillmonger::SearchBarModel> m_searchBar;
  QQmlEngine m_engine;
  std::unique_ptr<QQuickView> m_view;
};

}  // namespace testsupport
