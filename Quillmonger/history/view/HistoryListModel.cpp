#include "Quillmonger/history/view/HistoryListModel.h"

#include <algorithm>

#include "Quillmonger/history/view/AttributedLine.h"
#include "Quillmonger/history/view/RowLine.h"

namespace quillmonger {

namespace {

// Bytes from each end of a text: more than the widest row can show of the narrowest letters.
constexpr std::size_t rowTextLimit = 1024;
// Above this many rows that come and go, a view that starts anew is faster, and as much as an eye can follow.
constexpr std::ptrdiff_t gradualLimit = 16;

using Row = SearchResult<ClipboardItemViewModel>;

bool isSameItem(const Row& first, const Row& second) { return first.item == second.item; }

QString iconPath(const ClipboardItemViewModel& item) {
  const auto& url = item.item()->sourceAppBundleURL();
  return url ? QString::fromStdString(url->filePath().value_or(std::string())) : QString();
}

}  // namespace

int HistoryListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_rows->size());
}

QVariant HistoryListModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid)) return {};
  const Row& row = m_rows->at(static_cast<std::size_t>(index.row()));
  switch (role) {
    case lineRole:
      return plainText(rowLine(row.item->rowText(rowTextLimit), row.match));
    case attributedLineRole:
      return QVariant::fromValue(RowLine{rowLine(row.item->rowText(rowTextLimit), row.match)});
    case iconPathRole:
      return iconPath(*row.item);
    case appNameRole:
      return QString::fromStdString(row.item->appName().value_or(std::string()));
    case isImageRole:
      return row.item->isImage();
    case isFileURLRole:
      return row.item->isFileURL();
    default:
      return {};
  }
}

QHash<int, QByteArray> HistoryListModel::roleNames() const {
  return {{lineRole, "line"},         {attributedLineRole, "attributedLine"},
          {iconPathRole, "iconPath"}, {appNameRole, "appName"},
          {isImageRole, "isImage"},   {isFileURLRole, "isFileURL"}};
}

// What stays at both ends is left alone; what lies between goes, and what lies between in the new rows comes.
HistoryListModel::Change HistoryListModel::setRows(const Rows& rows) {
  const Rows before = m_rows;
  const auto starts = std::ranges::mismatch(*before, *rows, isSameItem);
  const auto first = static_cast<int>(starts.in1 - before->begin());
  auto oldEnd = before->end();
  auto newEnd = rows->end();
  while (oldEnd != starts.in1 && newEnd != starts.in2 && isSameItem(*(oldEnd - 1), *(newEnd - 1))) {
    --oldEnd;
    --newEnd;
  }
  const auto removed = oldEnd - starts.in1;
  const auto inserted = newEnd - starts.in2;
  if (removed + inserted > gradualLimit) {
    beginResetModel();
    m_rows = rows;
    endResetModel();
    return Change::reset;
  }
  if (removed > 0) {
    beginRemoveRows({}, first, first + static_cast<int>(removed) - 1);
    m_rows = before->without(starts.in1 - before->begin(), oldEnd - before->begin());
    endRemoveRows();
  }
  const Rows between = m_rows;
  if (inserted > 0) beginInsertRows({}, first, first + static_cast<int>(inserted) - 1);
  m_rows = rows;
  if (inserted > 0) endInsertRows();
  updateMatches(between);
  return Change::gradual;
}

// A longer term leaves most rows where they are, with another hit.
void HistoryListModel::updateMatches(const Rows& before) {
  if (!before->hasMatches() && !m_rows->hasMatches()) return;
  const auto added = m_rows->size() - before->size();
  std::size_t shift = 0;
  for (std::size_t row = 0; row < before->size(); ++row) {
    if (shift == 0 && added > 0 && !isSameItem(before->at(row), m_rows->at(row))) shift = added;
    if (before->at(row).match == m_rows->at(row + shift).match) continue;
    const QModelIndex changed = index(static_cast<int>(row + shift));
    emit dataChanged(changed, changed, {lineRole, attributedLineRole});
  }
}

int HistoryListModel::rowOf(const std::shared_ptr<ClipboardItemViewModel>& item) const {
  const auto found = std::ranges::find(*m_rows, item.get(), &Row::item);
  return item == nullptr || found == m_rows->end() ? -1 : static_cast<int>(found - m_rows->begin());
}

}  // namespace quillmonger
