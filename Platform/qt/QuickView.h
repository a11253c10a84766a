#pragma once

#include <QQuickView>

#include "Quillmonger/shell/windows/WindowSystem.h"

namespace platform {

/// The property of a `QWindow` that has asked for the front and hasn't come there yet.
inline constexpr auto awaitsFrontProperty = "awaitsFront";
/// The property of a `QWindow` with the level that it has among the program's windows.
inline constexpr auto levelProperty = "level";

/// The window of a `QtQuickWindow`: comes to the front, or stands there without the keyboard. Main thread.
class QuickView final : public QQuickView {
 public:
  /// Both outlive this object.
  QuickView(QQmlEngine& engine, quillmonger::WindowSystem& windowSystem);

  void showInFront();
  /// Under those of the program's windows whose level is higher, without taking the keyboard.
  void showBehindTheFront();

 private:
  void exposeEvent(QExposeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void hideEvent(QHideEvent* event) override;

  quillmonger::WindowSystem& m_windowSystem;
  bool m_comesToFront = false;
};

}  // namespace platform
