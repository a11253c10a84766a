#include "Quillmonger/history/view/HistoryListModel.h"

#include <QColor>
#include <algorithm>

#include "Quillmonger/history/view/AttributedLine.h"
#include "Quillmonger/history/view/RowLine.h"

namespace quillmonger {

namespace {

// Bytes from each end of a text: more than the widest row can show of the narrowest letters.
constexpr std::size_t rowTextLimit = 512;
// Above this many rows that come and go, a view that starts anew is faster, and as much as an eye can follow.
constexpr std::ptrdiff_t gradualLimit = 16;
// Rows, more than fit into the window.
constexpr int screenful = 32;

QString iconPath(const ClipboardItemViewModel& item) {
  const auto& url = item.item()->sourceAppBundleURL();
  return url ? QString::fromStdString(url->filePath().value_or(std::string())) : QString();
}

QColor screenColor(const RGBColor& rgb) {
  return QColor::fromRgbF(static_cast<float>(rgb.red()), static_cast<float>(rgb.green()),
                          static_cast<float>(rgb.blue()));
}

}  // namespace

HistoryListModel::HistoryListModel(ItemInspection& inspection)
    : m_inspection(inspection),
      m_findings(inspection.found().subscribe([this](const auto& item) { takeFindings(item); })) {}

int HistoryListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_rows->size());
}

QVariant HistoryListModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid)) return {};
  const auto row = m_rows->at(static_cast<std::size_t>(index.row()));
  switch (role) {
    case lineRole:
      return plainText(rowLine(row.item->rowText(rowTextLimit), row.match));
    case attributedLineRole:
      return QVariant::fromValue(RowLine{rowLine(row.item->rowText(rowTextLimit), row.match)});
    case iconPathRole:
      return iconPath(*row.item);
    case appNameRole:
      return QString::fromStdString(row.item->appName().value_or(std::string()));
    case hasOculetResultsRole:
      return m_inspection.hasOculetResults(row.item->shared_from_this());
    case textColorRole:
      return textColor(*row.item);
    case isImageRole:
      return row.item->isImage();
    case imageColorRole:
      return imageColor(*row.item);
    case isFileURLRole:
      return row.item->isFileURL();
    default:
      return {};
  }
}

QHash<int, QByteArray> HistoryListModel::roleNames() const {
  return {{lineRole, "line"},
          {attributedLineRole, "attributedLine"},
          {iconPathRole, "iconPath"},
          {appNameRole, "appName"},
          {hasOculetResultsRole, "hasOculetResults"},
          {textColorRole, "textColor"},
          {isImageRole, "isImage"},
          {imageColorRole, "imageColor"},
          {isFileURLRole, "isFileURL"}};
}

QVariant HistoryListModel::imageColor(ClipboardItemViewModel& item) const {
  if (!item.isImage()) return {};
  const auto color = m_inspection.imageColor(item.shared_from_this());
  return color ? screenColor(*color) : QVariant();
}

QVariant HistoryListModel::textColor(ClipboardItemViewModel& item) const {
  const auto color = m_inspection.textColor(item.shared_from_this());
  return color ? screenColor(colorComponents(*color, ColorSpace::genericRGB)) : QVariant();
}

void HistoryListModel::takeFindings(const ItemInspection::Item& item) {
  const int row = rowOf(item);
  if (row >= 0) emit dataChanged(index(row), index(row), {imageColorRole, hasOculetResultsRole, textColorRole});
}

// What stays at both ends is left alone; what lies between goes, and what lies between in the new rows comes.
HistoryListModel::Change HistoryListModel::setRows(const Rows& rows) {
  const Rows before = m_rows;
  const auto& oldItems = before->found();
  const auto& newItems = rows->found();
  const auto starts = std::ranges::mismatch(oldItems, newItems);
  const auto first = static_cast<int>(starts.in1 - oldItems.begin());
  auto oldEnd = oldItems.end();
  auto newEnd = newItems.end();
  while (oldEnd != starts.in1 && newEnd != starts.in2 && *(oldEnd - 1) == *(newEnd - 1)) {
    --oldEnd;
    --newEnd;
  }
  const auto removed = oldEnd - starts.in1;
  const auto inserted = newEnd - starts.in2;
  if (removed + inserted > gradualLimit) {
    replaceRows(rows);
    return Change::reset;
  }
  if (removed > 0) {
    beginRemoveRows({}, first, first + static_cast<int>(removed) - 1);
    m_rows = before->without(static_cast<std::size_t>(first), static_cast<std::size_t>(first + removed));
    endRemoveRows();
  }
  const Rows between = m_rows;
  if (inserted > 0) beginInsertRows({}, first, first + static_cast<int>(inserted) - 1);
  m_rows = rows;
  if (inserted > 0) endInsertRows();
  updateMatches(between);
  return Change::gradual;
}

// The rows on the screen stay and show other items, which spares the view making them anew; only one that had few rows
// starts afresh.
void HistoryListModel::replaceRows(const Rows& rows) {
  const auto before = static_cast<int>(m_rows->size());
  const auto after = static_cast<int>(rows->size());
  if (after > before && before < screenful) {
    beginResetModel();
    m_rows = rows;
    endResetModel();
    return;
  }
  if (after < before) beginRemoveRows({}, after, before - 1);
  if (after > before) beginInsertRows({}, before, after - 1);
  m_rows = rows;
  if (after < before) endRemoveRows();
  if (after > before) endInsertRows();
  if (before > 0 && after > 0) emit dataChanged(index(0), index(std::min(before, after) - 1));
}

// A longer term leaves most rows where they are, with another hit. Rows that follow one another are told of at once:
// the view has much to do for each telling.
void HistoryListModel::updateMatches(const Rows& before) {
  if (!before->mayHaveMatches() && !m_rows->mayHaveMatches()) return;
  int first = -1;
  int last = -1;
  const auto tell = [&] {
    if (first >= 0) emit dataChanged(index(first), index(last), {lineRole, attributedLineRole});
  };
  const auto added = m_rows->size() - before->size();
  std::size_t shift = 0;
  for (std::size_t row = 0; row < before->size(); ++row) {
    if (shift == 0 && added > 0 && before->found()[row] != m_rows->found()[row]) shift = added;
    if (before->at(row).match == m_rows->at(row + shift).match) continue;
    const int changed = static_cast<int>(row + shift);
    if (first < 0 || changed != last + 1) {
      tell();
      first = changed;
    }
    last = changed;
  }
  tell();
}

int HistoryListModel::rowOf(const std::shared_ptr<ClipboardItemViewModel>& item) const {
  const auto row = m_rows->rowOf(item.get());
  return row ? static_cast<int>(*row) : -1;
}

}  // namespace quillmonger
