#pragma once

#include <QtQml/qqmlregistration.h>
#include <QAbstractListModel>

#include "Quillmonger/history/ItemInspection.h"
#include "Quillmonger/search/SearchResult.h"

namespace quillmonger {

/// The rows of the history. They change by identity: a row that stays keeps its place in the view. After a new search
/// the rows on the screen stay and show what was found. Each row is worked out when it is shown. Not final, since QML
/// derives from it. Main thread.
class HistoryListModel : public QAbstractListModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("made by the program")

 public:
  using Rows = SearchResults<ClipboardItemViewModel>;
  enum Role {
    lineRole = Qt::UserRole,  ///< the text of the row, on one line
    attributedLineRole,       ///< the same with the hit, a `RowLine`
    iconPathRole,             ///< the source application's desktop entry; empty when there is none
    appNameRole,              ///< the source application's name
    hasOculetResultsRole,     ///< whether anything was recognised in the text; false until it is known
    textColorRole,            ///< the colour that the text names; undefined until it is known, and when it names none
    isImageRole,
    imageColorRole,  ///< the picture's average colour; undefined until it is known, and where there is none
    isFileURLRole
  };
  enum class Change { gradual, reset };

  /// `inspection` outlives this object.
  explicit HistoryListModel(ItemInspection& inspection);

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

  /// Never null.
  [[nodiscard]] const Rows& rows() const { return m_rows; }
  /// Tells how the view was led to the new rows.
  Change setRows(const Rows& rows);
  /// -1 when it is not among the rows.
  [[nodiscard]] int rowOf(const std::shared_ptr<ClipboardItemViewModel>& item) const;

 private:
  [[nodiscard]] QVariant imageColor(ClipboardItemViewModel& item) const;
  [[nodiscard]] QVariant textColor(ClipboardItemViewModel& item) const;
  void takeFindings(const ItemInspection::Item& item);
  void replaceRows(const Rows& rows);
  void updateMatches(const Rows& before);

  ItemInspection& m_inspection;
  Rows m_rows = std::make_shared<const SearchResultList<ClipboardItemViewModel>>();
  foundation::Subscription m_findings;
};

}  // namespace quillmonger
