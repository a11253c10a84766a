#pragma once

#include <QtQml/qqmlregistration.h>
#include <QAbstractListModel>

#include "Quillmonger/settings/panes/IgnoreAppsViewModel.h"

namespace quillmonger {

/// The ignored applications as the list shows them, and what its buttons do. Main thread.
class IgnoredAppsModel final : public QAbstractListModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("made by the program")
  Q_PROPERTY(int selectedRow READ selectedRow NOTIFY selectedRowChanged)

 public:
  enum Role {
    nameRole = Qt::UserRole,  ///< what the row is called
    pathRole                  ///< where the application lies, for its icon
  };

  /// `viewModel` outlives this object.
  explicit IgnoredAppsModel(IgnoreAppsViewModel& viewModel);

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

  /// -1 when none is selected.
  [[nodiscard]] int selectedRow() const { return m_selectedRow; }

  /// Nothing happens for a row that isn't there.
  Q_INVOKABLE void select(int row);
  Q_INVOKABLE void remove(int row);
  Q_INVOKABLE void add() { m_viewModel.addApp(); }

 signals:
  void selectedRowChanged();

 private:
  void takeApps(const std::vector<SystemApp>& apps);
  void updateSelectedRow();
  [[nodiscard]] bool isRow(int row) const { return row >= 0 && row < rowCount(); }

  IgnoreAppsViewModel& m_viewModel;
  std::vector<SystemApp> m_apps;
  int m_selectedRow = -1;
  foundation::Subscription m_appsSubscription;
  foundation::Subscription m_selectionSubscription;
};

}  // namespace quillmonger
