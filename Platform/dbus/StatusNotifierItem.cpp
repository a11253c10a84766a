#include "Platform/dbus/StatusNotifierItem.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <utility>

#include "Foundation/Output.h"

namespace platform {

namespace {

const auto itemPath = QStringLiteral("/StatusNotifierItem");
const auto trayService = QStringLiteral("org.kde.StatusNotifierWatcher");
const auto trayPath = QStringLiteral("/StatusNotifierWatcher");

}  // namespace

StatusNotifierItem::StatusNotifierItem(const QDBusConnection& sessionBus, StatusNotifierBar::DrawingLookup drawings)
    : m_sessionBus(sessionBus),
      m_drawings(std::move(drawings)),
      m_itemExport(new StatusNotifierExport(&m_item)),
      m_menuExport(new MenuExport(&m_menu)),
      m_trays(trayService, m_sessionBus, QDBusServiceWatcher::WatchForRegistration) {
  if (!m_sessionBus.isConnected()) {
    tellMissingTray();
    return;
  }
  m_sessionBus.registerObject(itemPath, &m_item);
  m_sessionBus.registerObject(QString::fromLatin1(StatusNotifierExport::menuPath), &m_menu);
  QObject::connect(&m_trays, &QDBusServiceWatcher::serviceRegistered, &m_item, [this] { registerWithTray(); });
  registerWithTray();
}

StatusNotifierItem::~StatusNotifierItem() {
  m_sessionBus.unregisterObject(itemPath);
  m_sessionBus.unregisterObject(QString::fromLatin1(StatusNotifierExport::menuPath));
}

void StatusNotifierItem::setMenu(quillmonger::StatusMenu menu) { m_menuExport->setMenu(std::move(menu)); }

void StatusNotifierItem::setImage(const std::string& name) { m_itemExport->setDrawing(m_drawings(name)); }

void StatusNotifierItem::setImageOffset(double points) { m_itemExport->setOffset(points); }

void StatusNotifierItem::registerWithTray() {
  auto call =
      QDBusMessage::createMethodCall(trayService, trayPath, trayService, QStringLiteral("RegisterStatusNotifierItem"));
  call << m_sessionBus.baseService();
  call.setAutoStartService(false);
  auto* answer = new QDBusPendingCallWatcher(m_sessionBus.asyncCall(call), &m_item);
  QObject::connect(answer, &QDBusPendingCallWatcher::finished, &m_item, [this, answer] {
    if (QDBusPendingReply<>(*answer).isError()) tellMissingTray();
    answer->deleteLater();
  });
}

void StatusNotifierItem::tellMissingTray() {
  if (std::exchange(m_isMissingTrayTold, true)) return;
  foundation::printLine(
      "No tray shows the status item: until one starts, the command `quillmonger` does what its menu does.");
}

}  // namespace platform
