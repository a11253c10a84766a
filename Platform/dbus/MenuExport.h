#pragma once

#include <QDBusAbstractAdaptor>
#include <QList>
#include <QStringList>
#include <QVariantMap>

#include "Platform/dbus/StatusNotifierTypes.h"
#include "Quillmonger/shell/StatusItem.h"

namespace platform {

/// A menu that another process shows, over the interface com.canonical.dbusmenu. The menu's root is entry 0; the entry
/// at position n of the menu is entry n + 1. Main thread.
class MenuExport final : public QDBusAbstractAdaptor {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "com.canonical.dbusmenu")
  Q_PROPERTY(uint Version READ version)
  Q_PROPERTY(QString TextDirection READ textDirection)
  Q_PROPERTY(QString Status READ status)
  Q_PROPERTY(QStringList IconThemePath READ iconThemePath)

 public:
  /// `object` is the one that is exported, and owns this.
  explicit MenuExport(QObject* object) : QDBusAbstractAdaptor(object) {}

  /// Tells whoever shows the menu what has changed.
  void setMenu(quillmonger::StatusMenu menu);

  [[nodiscard]] uint version() const { return 3; }
  [[nodiscard]] QString textDirection() const;
  [[nodiscard]] QString status() const { return QStringLiteral("normal"); }
  [[nodiscard]] QStringList iconThemePath() const { return {}; }

  // NOLINTNEXTLINE(readability-redundant-access-specifiers)
 public slots:
  // Capitals, names and types are the interface's.
  uint GetLayout(int parentId, int recursionDepth, const QStringList& propertyNames, platform::MenuNode& layout) const;
  QList<platform::MenuEntryProperties> GetGroupProperties(const QList<int>& ids,
                                                          const QStringList& propertyNames) const;
  QDBusVariant GetProperty(int id, const QString& name) const;
  void Event(int id, const QString& eventId, const QDBusVariant& data, uint timestamp);
  QList<int> EventGroup(const QList<platform::MenuEvent>& events);
  bool AboutToShow(int id) const;
  QList<int> AboutToShowGroup(const QList<int>& ids, QList<int>& idErrors) const;

 signals:
  void ItemsPropertiesUpdated(const QList<platform::MenuEntryProperties>& updatedProps,
                              const QList<platform::MenuEntryDefaults>& removedProps);
  void LayoutUpdated(uint revision, int parent);
  void ItemActivationRequested(int id, uint timestamp);

 private:
  [[nodiscard]] bool isKnown(int id) const { return id >= 0 && id <= m_entries.size(); }
  [[nodiscard]] QVariantMap propertiesOf(int id, const QStringList& names) const;

  quillmonger::StatusMenu m_menu;
  /// What each entry of the menu is told as, in its order.
  QList<QVariantMap> m_entries;
  uint m_revision = 1;
};

}  // namespace platform
