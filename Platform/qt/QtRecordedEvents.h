#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QWindow>
#include <optional>

#include "KeyboardShortcuts/RecordedEvents.h"

class QKeyEvent;
class QMouseEvent;

namespace platform {

/// The events of the window with the keyboard, which has all keys to itself meanwhile, before every other filter. A key
/// that was swallowed stays with it until it is up: what it repeats neither runs the chord that it has just become nor
/// reaches the window.
/// Made after the application object, and gone before it.
class QtRecordedEvents final : public QObject, public keyboardshortcuts::RecordedEvents {
 public:
  QtRecordedEvents();
  QtRecordedEvents(const QtRecordedEvents&) = delete;
  QtRecordedEvents& operator=(const QtRecordedEvents&) = delete;
  ~QtRecordedEvents() override;

  /// Without a window that has the keyboard nothing is told.
  foundation::Subscription watch(Handler handler) override;

 private:
  bool eventFilter(QObject* watched, QEvent* event) override;
  bool handleOwn(const QEvent& event);
  bool handlePress(const QKeyEvent& event);
  bool handleRelease(const QKeyEvent& event);
  void handleMouse(const QMouseEvent& event);
  void endHold();
  void endWatch();
  void letGo();

  QPointer<QWindow> m_window;
  Handler m_handler;
  /// The swallowed key that is still down, by its scan code.
  std::optional<quint32> m_heldKey;
  /// When the held key was last told to be up, by the window system's clock.
  quint64 m_releaseTime = 0;
  QTimer m_release;
};

}  // namespace platform
