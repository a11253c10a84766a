#pragma once

#include <QDBusConnection>
#include <QDBusVirtualObject>
#include <QMap>
#include <QVariantMap>

namespace testsupport {

/// A settings portal on a bus, whose settings the test sets.
class FakePortal final : public QDBusVirtualObject {
  Q_OBJECT

 public:
  using Settings = QMap<QString, QVariantMap>;

  explicit FakePortal(const QDBusConnection& bus);
  ~FakePortal() override;

  void set(const QString& settingNamespace, const QString& key, const QVariant& value);
  /// Tells whoever listens, without keeping it.
  void announce(const QString& settingNamespace, const QString& key, const QVariant& value);
  /// What every call is answered, instead of the settings.
  void answerWith(const QVariant& answer) { m_answer = answer; }
  /// Takes the portal's name on the bus.
  void appear();
  [[nodiscard]] int askedCount() const { return m_askedCount; }

  [[nodiscard]] QString introspect(const QString& path) const override;
  bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

 private:
  QDBusConnection m_bus;
  Settings m_settings;
  QVariant m_answer;
  int m_askedCount = 0;
};

}  // namespace testsupport
