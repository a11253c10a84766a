#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <functional>
#include <memory>

#include "Foundation/Published.h"
#include "Quillmonger/history/view/HistoryListModel.h"

namespace quillmonger {

/// What the list shows of the history, and what a click on it does. Main thread.
class ClipboardViewAdapter final : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("made by the program")
  Q_PROPERTY(HistoryListModel* rows READ rows CONSTANT)
  Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY isEmptyChanged)
  Q_PROPERTY(int selectedRow READ selectedRow NOTIFY selectedRowChanged)
  Q_PROPERTY(bool isOptionPressed READ isOptionPressed NOTIFY isOptionPressedChanged)

 public:
  using Item = std::shared_ptr<ClipboardItemViewModel>;
  /// The history's view model, piece by piece. All of it outlives the adapter.
  struct History {
    foundation::Published<HistoryListModel::Rows>& filteredItems;
    foundation::Published<Item>& selectedItem;
    foundation::Published<bool>& isOptionPressed;
    /// Whether nothing is in the history at all, whatever is searched for.
    std::function<bool()> isEmpty;
    std::function<void(const Item&)> select;
    ItemInspection& inspection;
  };

  explicit ClipboardViewAdapter(const History& history);

  [[nodiscard]] HistoryListModel* rows() { return &m_rows; }
  [[nodiscard]] bool isEmpty() const { return m_isEmpty; }
  /// -1 for none.
  [[nodiscard]] int selectedRow() const { return m_selectedRow; }
  [[nodiscard]] bool isOptionPressed() const { return m_history.isOptionPressed.value(); }

  Q_INVOKABLE void select(int row);
  Q_INVOKABLE void paste(int row);

 signals:
  void isEmptyChanged();
  void selectedRowChanged();
  void isOptionPressedChanged();
  /// The row is to be brought into view.
  void revealed(int row);

 private:
  void takeRows(const HistoryListModel::Rows& rows);
  void takeSelection(const Item& item);
  void updateSelectedRow();
  void updateEmptiness();
  [[nodiscard]] Item itemAt(int row) const;

  History m_history;
  HistoryListModel m_rows;
  Item m_selectedItem;
  int m_selectedRow = -1;
  bool m_isEmpty = true;
  foundation::Subscription m_rowsSubscription;
  foundation::Subscription m_selectionSubscription;
  foundation::Subscription m_optionSubscription;
};

}  // namespace quillmonger
