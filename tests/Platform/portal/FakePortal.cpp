#include "tests/Platform/portal/FakePortal.h"

#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVariant>

namespace testsupport {

namespace {

QString service() { return QStringLiteral("org.freedesktop.portal.Desktop"); }
QString place() { return QStringLiteral("/org/freedesktop/portal/desktop"); }
QString settingsInterface() { return QStringLiteral("org.freedesktop.portal.Settings"); }

}  // namespace

FakePortal::FakePortal(const QDBusConnection& bus) : m_bus(bus) {
  qDBusRegisterMetaType<Settings>();
  m_bus.registerVirtualObject(place(), this);
}

FakePortal::~FakePortal() {
  m_bus.unregisterObject(place());
  m_bus.unregisterService(service());
}

void FakePortal::set(const QString& settingNamespace, const QString& key, const QVariant& value) {
  m_settings[settingNamespace][key] = value;
  announce(settingNamespace, key, value);
}

void FakePortal::announce(const QString& settingNamespace, const QString& key, const QVariant& value) {
  auto change = QDBusMessage::createSignal(place(), settingsInterface(), QStringLiteral("SettingChanged"));
  change << settingNamespace << key << QVariant::fromValue(QDBusVariant(value));
  m_bus.send(change);
}

void FakePortal::appear() { m_bus.registerService(service()); }

QString FakePortal::introspect(const QString& /*path*/) const { return {}; }

bool FakePortal::handleMessage(const QDBusMessage& message, const QDBusConnection& connection) {
  if (message.interface() != settingsInterface() || message.member() != QLatin1String("ReadAll")) return false;
  ++m_askedCount;
  Settings asked;
  for (const QString& settingNamespace : message.arguments().value(0).toStringList()) {
    if (m_settings.contains(settingNamespace)) asked[settingNamespace] = m_settings[settingNamespace];
  }
  connection.send(message.createReply(m_answer.isValid() ? m_answer : QVariant::fromValue(asked)));
  return true;
}

}  // namespace testsupport
