#include "Quillmonger/settings/view/IgnoredAppsModel.h"

#include <algorithm>
#include <utility>

namespace quillmonger {

IgnoredAppsModel::IgnoredAppsModel(IgnoreAppsViewModel& viewModel)
    : m_viewModel(viewModel), m_apps(viewModel.apps().value()) {
  m_appsSubscription = viewModel.apps().subscribe([this](const auto& apps) { takeApps(apps); });
  m_selectionSubscription = viewModel.selectedApp().follow([this](const auto&) { updateSelectedRow(); });
}

int IgnoredAppsModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_apps.size());
}

QVariant IgnoredAppsModel::data(const QModelIndex& index, int role) const {
  if (!isRow(index.row())) return {};
  const SystemApp& app = m_apps.at(static_cast<std::size_t>(index.row()));
  if (role == nameRole) return QString::fromStdString(shownName(app));
  if (role == pathRole) return QString::fromStdString(app.relativePath);
  return {};
}

QHash<int, QByteArray> IgnoredAppsModel::roleNames() const { return {{nameRole, "name"}, {pathRole, "path"}}; }

void IgnoredAppsModel::select(int row) {
  if (isRow(row)) m_viewModel.selectedApp().set(m_apps.at(static_cast<std::size_t>(row)));
}

void IgnoredAppsModel::remove(int row) {
  if (isRow(row)) m_viewModel.removeApp(m_apps.at(static_cast<std::size_t>(row)));
}

// One application comes or goes at a time.
void IgnoredAppsModel::takeApps(const std::vector<SystemApp>& apps) {
  const auto differs = std::ranges::mismatch(m_apps, apps);
  const auto row = static_cast<int>(differs.in1 - m_apps.begin());
  if (apps.size() > m_apps.size()) {
    beginInsertRows({}, row, row + static_cast<int>(apps.size() - m_apps.size()) - 1);
    m_apps = apps;
    endInsertRows();
  } else if (apps.size() < m_apps.size()) {
    beginRemoveRows({}, row, row + static_cast<int>(m_apps.size() - apps.size()) - 1);
    m_apps = apps;
    endRemoveRows();
  }
  updateSelectedRow();
}

void IgnoredAppsModel::updateSelectedRow() {
  const auto& selected = m_viewModel.selectedApp().value();
  const auto found = selected ? std::ranges::find(m_apps, *selected) : m_apps.end();
  const int row = found == m_apps.end() ? -1 : static_cast<int>(found - m_apps.begin());
  if (std::exchange(m_selectedRow, row) != row) emit selectedRowChanged();
}

}  // namespace quillmonger
