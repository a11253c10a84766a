#pragma once

#include <QByteArray>
#include <QDBusArgument>
#include <QDBusVariant>
#include <QList>
#include <QMetaType>
#include <QString>
#include <QStringList>
#include <QVariantMap>

namespace platform {

/// One size of a picture, as (iiay): colours from the most significant byte on, with alpha first, not premultiplied.
struct NotifierPixmap {
  int width = 0;
  int height = 0;
  QByteArray pixels;
};

/// As (sa(iiay)ss).
struct NotifierToolTip {
  QString iconName;
  QList<platform::NotifierPixmap> pixmaps;
  QString title;
  QString text;
};

/// An entry of a menu and, as a variant each, those below it: (ia{sv}av).
struct MenuNode {
  int id = 0;
  QVariantMap properties;
  QList<QDBusVariant> children;
};

/// As (ia{sv}).
struct MenuEntryProperties {
  int id = 0;
  QVariantMap properties;
};

/// Names of properties that have fallen back to their defaults, as (ias).
struct MenuEntryDefaults {
  int id = 0;
  QStringList names;
};

/// What the user did with an entry, as (isvu).
struct MenuEvent {
  int id = 0;
  QString name;
  QDBusVariant data;
  uint timestamp = 0;
};

/// Makes all of them known to QtDBus. Before the first object is exported.
void registerStatusNotifierTypes();

}  // namespace platform

Q_DECLARE_METATYPE(platform::NotifierPixmap)
Q_DECLARE_METATYPE(platform::NotifierToolTip)
Q_DECLARE_METATYPE(platform::MenuNode)
Q_DECLARE_METATYPE(platform::MenuEntryProperties)
Q_DECLARE_METATYPE(platform::MenuEntryDefaults)
Q_DECLARE_METATYPE(platform::MenuEvent)
