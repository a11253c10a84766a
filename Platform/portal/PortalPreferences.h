#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QObject>
#include <QVariantMap>

#include "Quillmonger/settings/DesktopPreferences.h"

namespace platform {

/// The desktop's preferences by its settings portal. Nothing waits for the portal: it is asked when this object is made
/// and whenever a portal comes, and its changes are followed. When it goes, what it said stands until another one
/// comes. An answer that is not of the promised type says nothing. Main thread.
class PortalPreferences final : public QObject, public quillmonger::DesktopPreferences {
  Q_OBJECT

 public:
  explicit PortalPreferences(const QDBusConnection& bus);

  [[nodiscard]] foundation::Published<std::optional<quillmonger::ColorScheme>>& colorScheme() override {
    return m_colorScheme;
  }
  [[nodiscard]] foundation::Published<bool>& reducesMotion() override { return m_reducesMotion; }

 private slots:
  void take(const QString& settingNamespace, const QString& key, const QDBusVariant& value);

  // NOLINTNEXTLINE(readability-redundant-access-specifiers)
 private:
  void ask();
  void listenTo(const QString& portal);
  void takeAll(const QDBusMessage& answer);

  QDBusConnection m_bus;
  QDBusServiceWatcher m_watcher;
  /// That answered last.
  QString m_portal;
  foundation::Published<std::optional<quillmonger::ColorScheme>> m_colorScheme;
  foundation::Published<bool> m_reducesMotion{false};
};

}  // namespace platform
