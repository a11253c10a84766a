#pragma once

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>
#include <string>

#include "Platform/dbus/MenuExport.h"
#include "Platform/dbus/StatusNotifierBar.h"
#include "Platform/dbus/StatusNotifierExport.h"
#include "Quillmonger/shell/StatusItem.h"

namespace platform {

/// The item of a `StatusNotifierBar`: exported on the bus, and registered with the tray as often as one starts.
class StatusNotifierItem final : public quillmonger::StatusItem {
 public:
  StatusNotifierItem(const QDBusConnection& sessionBus, StatusNotifierBar::DrawingLookup drawings);
  StatusNotifierItem(const StatusNotifierItem&) = delete;
  StatusNotifierItem& operator=(const StatusNotifierItem&) = delete;
  ~StatusNotifierItem() override;

  [[nodiscard]] bool hasButton() const override { return m_sessionBus.isConnected(); }
  void setMenu(quillmonger::StatusMenu menu) override;
  void setImage(const std::string& name) override;
  void setImageOffset(double points) override;

 private:
  void registerWithTray();
  void tellMissingTray();

  QDBusConnection m_sessionBus;
  StatusNotifierBar::DrawingLookup m_drawings;
  bool m_isMissingTrayTold = false;
  // Each owns its adaptor.
  QObject m_item;
  QObject m_menu;
  StatusNotifierExport* m_itemExport;
  MenuExport* m_menuExport;
  QDBusServiceWatcher m_trays;
};

}  // namespace platform
