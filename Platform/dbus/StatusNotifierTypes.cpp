#include "Platform/dbus/StatusNotifierTypes.h"

#include <QDBusMetaType>

namespace platform {

namespace {

// Each type is a structure of its members, in their order.
template <typename... Member>
void write(QDBusArgument& argument, const Member&... members) {
  argument.beginStructure();
  (argument << ... << members);
  argument.endStructure();
}

template <typename... Member>
const QDBusArgument& read(const QDBusArgument& argument, Member&... members) {
  argument.beginStructure();
  (argument >> ... >> members);
  argument.endStructure();
  return argument;
}

}  // namespace

QDBusArgument& operator<<(QDBusArgument& argument, const NotifierPixmap& pixmap) {
  write(argument, pixmap.width, pixmap.height, pixmap.pixels);
  return argument;
}
const QDBusArgument& operator>>(const QDBusArgument& argument, NotifierPixmap& pixmap) {
  return read(argument, pixmap.width, pixmap.height, pixmap.pixels);
}

QDBusArgument& operator<<(QDBusArgument& argument, const NotifierToolTip& toolTip) {
  write(argument, toolTip.iconName, toolTip.pixmaps, toolTip.title, toolTip.text);
  return argument;
}
const QDBusArgument& operator>>(const QDBusArgument& argument, NotifierToolTip& toolTip) {
  return read(argument, toolTip.iconName, toolTip.pixmaps, toolTip.title, toolTip.text);
}

QDBusArgument& operator<<(QDBusArgument& argument, const MenuNode& node) {
  write(argument, node.id, node.properties, node.children);
  return argument;
}
const QDBusArgument& operator>>(const QDBusArgument& argument, MenuNode& node) {
  return read(argument, node.id, node.properties, node.children);
}

QDBusArgument& operator<<(QDBusArgument& argument, const MenuEntryProperties& entry) {
  write(argument, entry.id, entry.properties);
  return argument;
}
const QDBusArgument& operator>>(const QDBusArgument& argument, MenuEntryProperties& entry) {
  return read(argument, entry.id, entry.properties);
}

QDBusArgument& operator<<(QDBusArgument& argument, const MenuEntryDefaults& entry) {
  write(argument, entry.id, entry.names);
  return argument;
}
const QDBusArgument& operator>>(const QDBusArgument& argument, MenuEntryDefaults& entry) {
  return read(argument, entry.id, entry.names);
}

QDBusArgument& operator<<(QDBusArgument& argument, const MenuEvent& event) {
  write(argument, event.id, event.name, event.data, event.timestamp);
  return argument;
}
const QDBusArgument& operator>>(const QDBusArgument& argument, MenuEvent& event) {
  return read(argument, event.id, event.name, event.data, event.timestamp);
}

void registerStatusNotifierTypes() {
  qDBusRegisterMetaType<NotifierPixmap>();
  qDBusRegisterMetaType<QList<NotifierPixmap>>();
  qDBusRegisterMetaType<NotifierToolTip>();
  qDBusRegisterMetaType<MenuNode>();
  qDBusRegisterMetaType<MenuEntryProperties>();
  qDBusRegisterMetaType<QList<MenuEntryProperties>>();
  qDBusRegisterMetaType<MenuEntryDefaults>();
  qDBusRegisterMetaType<QList<MenuEntryDefaults>>();
  qDBusRegisterMetaType<MenuEvent>();
  qDBusRegisterMetaType<QList<MenuEvent>>();
  qDBusRegisterMetaType<QList<QStringList>>();
  qDBusRegisterMetaType<QList<QDBusVariant>>();
}

}  // namespace platform
