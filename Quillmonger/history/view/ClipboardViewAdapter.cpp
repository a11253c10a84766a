#include "Quillmonger/history/view/ClipboardViewAdapter.h"

#include <utility>

namespace quillmonger {

ClipboardViewAdapter::ClipboardViewAdapter(const History& history)
    : m_history(history), m_rows(history.inspection), m_selectedItem(history.selectedItem.value()) {
  m_rowsSubscription = history.filteredItems.follow([this](const HistoryListModel::Rows& rows) { takeRows(rows); });
  m_selectionSubscription = history.selectedItem.subscribe([this](const Item& item) { takeSelection(item); });
  m_optionSubscription = history.isOptionPressed.subscribe([this](bool) { emit isOptionPressedChanged(); });
}

void ClipboardViewAdapter::select(int row) {
  if (const Item item = itemAt(row)) m_history.select(item);
}

void ClipboardViewAdapter::paste(int row) {
  using Invert = ClipboardItemViewModel::Invert;
  if (const Item item = itemAt(row)) item->paste(isOptionPressed() ? Invert::yes : Invert::no);
}

void ClipboardViewAdapter::takeRows(const HistoryListModel::Rows& rows) {
  const auto change = m_rows.setRows(rows);
  updateSelectedRow();
  if (change == HistoryListModel::Change::reset && m_selectedRow >= 0) emit revealed(m_selectedRow);
  updateEmptiness();
  // The list that is searched can change a moment after the rows.
  QMetaObject::invokeMethod(this, &ClipboardViewAdapter::updateEmptiness, Qt::QueuedConnection);
}

void ClipboardViewAdapter::takeSelection(const Item& item) {
  const bool isOther = std::exchange(m_selectedItem, item) != item;
  updateSelectedRow();
  if (isOther && m_selectedRow >= 0) emit revealed(m_selectedRow);
}

void ClipboardViewAdapter::updateSelectedRow() {
  const int row = m_rows.rowOf(m_selectedItem);
  if (std::exchange(m_selectedRow, row) != row) emit selectedRowChanged();
}

void ClipboardViewAdapter::updateEmptiness() {
  const bool isEmpty = m_history.isEmpty();
  if (std::exchange(m_isEmpty, isEmpty) != isEmpty) emit isEmptyChanged();
}

ClipboardViewAdapter::Item ClipboardViewAdapter::itemAt(int row) const {
  const auto& rows = *m_rows.rows();
  const bool isThere = row >= 0 && static_cast<std::size_t>(row) < rows.size();
  return isThere ? rows.at(static_cast<std::size_t>(row)).item->shared_from_this() : nullptr;
}

}  // namespace quillmonger
