#include "Quillmonger/settings/view/AppPickerModel.h"

#include <utility>

namespace quillmonger {

AppPickerModel::AppPickerModel(AppPickerViewModel& viewModel, std::function<std::string()> clipboardText)
    : m_viewModel(viewModel),
      m_clipboardText(std::move(clipboardText)),
      m_applications(viewModel.applications().value()) {
  m_applicationsSubscription = viewModel.applications().subscribe([this](const auto& applications) {
    beginResetModel();
    m_applications = applications;
    endResetModel();
    emit countChanged();
  });
  m_selectionSubscription = viewModel.selectedRow().subscribe([this](const auto&) { emit selectedRowChanged(); });
  m_loadingSubscription = viewModel.isLoading().subscribe([this](bool) { emit isLoadingChanged(); });
}

int AppPickerModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_applications.size());
}

QVariant AppPickerModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= rowCount()) return {};
  const auto& application = *m_applications.at(static_cast<std::size_t>(index.row()));
  switch (role) {
    case nameRole:
      return QString::fromStdString(application.name);
    case identifierRole:
      return QString::fromStdString(application.identifier);
    case pathRole:
      return QString::fromStdString(application.url.filePath().value_or(std::string()));
    default:
      return {};
  }
}

QHash<int, QByteArray> AppPickerModel::roleNames() const {
  return {{nameRole, "name"}, {identifierRole, "identifier"}, {pathRole, "path"}};
}

int AppPickerModel::selectedRow() const {
  const auto row = m_viewModel.selectedRow().value();
  return row ? static_cast<int>(*row) : -1;
}

void AppPickerModel::setSearchTerm(const QString& term) {
  if (term == m_searchTerm) return;
  m_searchTerm = term;
  m_viewModel.setSearchTerm(term.toStdString());
  emit searchTermChanged();
}

void AppPickerModel::select(int row) {
  if (row >= 0) m_viewModel.select(static_cast<std::size_t>(row));
}

QString AppPickerModel::clipboardText() const {
  constexpr qsizetype longestTerm = 1000;
  return QString::fromStdString(m_clipboardText()).simplified().left(longestTerm);
}

}  // namespace quillmonger
