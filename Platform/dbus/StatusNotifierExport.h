#pragma once

#include <QDBusAbstractAdaptor>
#include <QDBusObjectPath>
#include <QList>
#include <QString>

#include "Platform/dbus/StatusNotifierTypes.h"
#include "Platform/dbus/StatusPicture.h"

namespace platform {

/// What a panel may know of the status item, over the interface org.kde.StatusNotifierItem. It has no method of its
/// own: a click does nothing but open the menu, which the panel does by itself. Main thread.
class StatusNotifierExport final : public QDBusAbstractAdaptor {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")
  Q_PROPERTY(QString Category READ category)
  Q_PROPERTY(QString Id READ id)
  Q_PROPERTY(QString Title READ title)
  Q_PROPERTY(QString Status READ status)
  Q_PROPERTY(int WindowId READ windowId)
  Q_PROPERTY(QString IconName READ iconName)
  Q_PROPERTY(QString IconThemePath READ iconName)
  Q_PROPERTY(QList<platform::NotifierPixmap> IconPixmap READ iconPixmap)
  Q_PROPERTY(QString OverlayIconName READ iconName)
  Q_PROPERTY(QString AttentionIconName READ iconName)
  Q_PROPERTY(platform::NotifierToolTip ToolTip READ toolTip)
  Q_PROPERTY(bool ItemIsMenu READ itemIsMenu)
  Q_PROPERTY(QDBusObjectPath Menu READ menu)

 public:
  static constexpr auto menuPath = "/MenuBar";

  /// `object` is the one that is exported, and owns this.
  explicit StatusNotifierExport(QObject* object) : QDBusAbstractAdaptor(object) {}

  /// Each tells whoever shows the item to ask for the picture anew.
  void setDrawing(const std::string& place);
  void setOffset(double points);

  [[nodiscard]] QString category() const { return QStringLiteral("ApplicationStatus"); }
  [[nodiscard]] QString id() const { return QStringLiteral("quillmonger"); }
  [[nodiscard]] QString title() const { return QStringLiteral("Quillmonger"); }
  [[nodiscard]] QString status() const { return QStringLiteral("Active"); }
  [[nodiscard]] int windowId() const { return 0; }
  /// None: the bounce needs pictures, and a panel that knows a name takes nothing else.
  [[nodiscard]] QString iconName() const { return {}; }
  /// Drawn when it is asked for, so that a bounce that nobody sees costs nothing.
  [[nodiscard]] QList<platform::NotifierPixmap> iconPixmap() const { return m_picture.pixmaps(); }
  [[nodiscard]] platform::NotifierToolTip toolTip() const { return {{}, {}, title(), {}}; }
  [[nodiscard]] bool itemIsMenu() const { return true; }
  [[nodiscard]] QDBusObjectPath menu() const { return QDBusObjectPath(QString::fromLatin1(menuPath)); }

 signals:
  void NewTitle();
  void NewIcon();
  void NewAttentionIcon();
  void NewOverlayIcon();
  void NewToolTip();
  void NewStatus(const QString& status);

 private:
  StatusPicture m_picture;
};

}  // namespace platform
