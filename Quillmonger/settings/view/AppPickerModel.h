#pragma once

#include <QtQml/qqmlregistration.h>
#include <QAbstractListModel>
#include <functional>
#include <string>

#include "Quillmonger/settings/panes/AppPickerViewModel.h"

namespace quillmonger {

/// The applications found, as the list shows them, and what is typed and chosen. Main thread.
class AppPickerModel final : public QAbstractListModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("made by the program")
  Q_PROPERTY(int count READ count NOTIFY countChanged)
  Q_PROPERTY(int selectedRow READ selectedRow NOTIFY selectedRowChanged)
  Q_PROPERTY(bool isLoading READ isLoading NOTIFY isLoadingChanged)
  Q_PROPERTY(QString searchTerm READ searchTerm WRITE setSearchTerm NOTIFY searchTermChanged)

 public:
  enum Role {
    nameRole = Qt::UserRole,
    identifierRole,
    pathRole  ///< where the application lies, for its icon
  };

  /// `viewModel` outlives this object. `clipboardText` gives what a paste into the field pastes, and waits for nobody.
  AppPickerModel(AppPickerViewModel& viewModel, std::function<std::string()> clipboardText);

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

  [[nodiscard]] int count() const { return rowCount(); }
  /// -1 without rows.
  [[nodiscard]] int selectedRow() const;
  [[nodiscard]] bool isLoading() const { return m_viewModel.isLoading().value(); }
  [[nodiscard]] QString searchTerm() const { return m_searchTerm; }
  void setSearchTerm(const QString& term);

  Q_INVOKABLE void select(int row);
  Q_INVOKABLE void moveSelection(int rows) { m_viewModel.moveSelection(rows); }
  Q_INVOKABLE void choose() { m_viewModel.choose(); }
  Q_INVOKABLE void cancel() { m_viewModel.cancel(); }
  /// The clipboard's text on one line, cut to what anybody would search for.
  Q_INVOKABLE [[nodiscard]] QString clipboardText() const;

 signals:
  void countChanged();
  void selectedRowChanged();
  void isLoadingChanged();
  void searchTermChanged();

 private:
  AppPickerViewModel& m_viewModel;
  std::function<std::string()> m_clipboardText;
  QString m_searchTerm;
  std::vector<AppPickerViewModel::Application> m_applications;
  foundation::Subscription m_applicationsSubscription;
  foundation::Subscription m_selectionSubscription;
  foundation::Subscription m_loadingSubscription;
};

}  // namespace quillmonger
