#include "Platform/portal/PortalPreferences.h"

#include <QDBusArgument>
#include <QDBusPendingCallWatcher>

namespace platform {

namespace {

using quillmonger::ColorScheme;

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString interface = QStringLiteral("org.freedesktop.portal.Settings");
const QString appearance = QStringLiteral("org.freedesktop.appearance");
const QString desktopInterface = QStringLiteral("org.gnome.desktop.interface");

// Some portals wrap a value twice.
QVariant unwrapped(QVariant value) {
  if (value.userType() == qMetaTypeId<QDBusVariant>()) value = value.value<QDBusVariant>().variant();
  return value;
}

std::optional<ColorScheme> scheme(const QVariant& value) {
  constexpr uint dark = 1;
  constexpr uint light = 2;
  if (value.userType() != QMetaType::UInt) return std::nullopt;
  if (value.toUInt() == dark) return ColorScheme::dark;
  return value.toUInt() == light ? std::optional(ColorScheme::light) : std::nullopt;
}

}  // namespace

PortalPreferences::PortalPreferences(const QDBusConnection& bus)
    : m_bus(bus), m_watcher(service, bus, QDBusServiceWatcher::WatchForRegistration) {
  connect(&m_watcher, &QDBusServiceWatcher::serviceRegistered, this, [this] { ask(); });
  ask();
}

void PortalPreferences::ask() {
  if (!m_bus.isConnected()) return;
  auto call = QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("ReadAll"));
  call << QStringList{appearance, desktopInterface};
  auto* const watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
  connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
    takeAll(watcher->reply());
    watcher->deleteLater();
  });
}

void PortalPreferences::takeAll(const QDBusMessage& answer) {
  if (answer.type() != QDBusMessage::ReplyMessage) return;
  if (answer.service() != m_portal) listenTo(answer.service());
  if (answer.signature() != QLatin1String("a{sa{sv}}")) return;
  const auto settings = qdbus_cast<QMap<QString, QVariantMap>>(answer.arguments().constFirst());
  for (auto space = settings.begin(); space != settings.end(); ++space) {
    for (auto entry = space->begin(); entry != space->end(); ++entry)
      take(space.key(), entry.key(), QDBusVariant(entry.value()));
  }
}

// By its unique name: the bus and the toolkit can be of two minds for a moment on who owns the well-known one. What
// changed between its answer and now is asked for again.
void PortalPreferences::listenTo(const QString& portal) {
  const QString signal = QStringLiteral("SettingChanged");
  const char* const slot = SLOT(take(QString, QString, QDBusVariant));
  if (!m_portal.isEmpty()) m_bus.disconnect(m_portal, path, interface, signal, this, slot);
  m_portal = portal;
  m_bus.connect(m_portal, path, interface, signal, this, slot);
  ask();
}

void PortalPreferences::take(const QString& settingNamespace, const QString& key, const QDBusVariant& wrapped) {
  const QVariant value = unwrapped(wrapped.variant());
  if (settingNamespace == appearance && key == QLatin1String("color-scheme")) m_colorScheme.set(scheme(value));
  if (settingNamespace == desktopInterface && key == QLatin1String("enable-animations")) {
    m_reducesMotion.set(value.userType() == QMetaType::Bool && !value.toBool());
  }
}

}  // namespace platform
