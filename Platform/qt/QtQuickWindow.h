#pragma once

#include <QSize>
#include <QString>
#include <QUrl>
#include <QVariantMap>
#include <functional>
#include <memory>

#include "Quillmonger/shell/windows/Window.h"
#include "Quillmonger/shell/windows/WindowSystem.h"

class QQmlEngine;
class QQuickView;

namespace platform {

/// The property of a `QWindow` that has asked for the front and hasn't come there yet.
inline constexpr auto awaitsFrontProperty = "awaitsFront";

/// A window whose content is a Qt Quick view tree. The tree is loaded when it is first needed, or earlier by
/// `prepare`, and stays painted while the window is hidden, so that showing it is instant.
class QtQuickWindow final : public quillmonger::Window {
 public:
  enum class Kind {
    palette,  ///< no frame, above the other windows, no entry in the task list, corners of the content's own
    dialog    ///< the desktop's frame, fixed size
  };
  struct Content {
    QUrl source;
    QVariantMap initialProperties;
  };
  struct Description {
    Kind kind = Kind::palette;
    /// Empty: as large as the content wants to be.
    QSize size;
    QString title;
    /// Asked once, when the tree is loaded. The objects that it names outlive the window.
    std::function<Content()> content;
    std::function<QQmlEngine&()> engine;
  };

  QtQuickWindow(Description description, quillmonger::WindowSystem& windowSystem);
  ~QtQuickWindow() override;

  /// Loads and paints the tree, unless that is done. Takes tens of milliseconds: called in an idle turn after the
  /// start, it spares the first show that time. A tree that can't be loaded is a fault of the program and stops it.
  void prepare();
  /// Takes it off the screen and lets go of the tree, before the objects that it shows go.
  void unload();

  [[nodiscard]] bool isVisible() const override;
  /// On the screen with the pointer.
  void center() override;
  void makeKeyAndOrderFront() override;
  void orderOut() override;

  /// Null before `prepare`.
  [[nodiscard]] QQuickView* view() const;

 private:
  class View;
  void applyKind();
  void followSize();
  void applySize(const QSize& size);

  Description m_description;
  quillmonger::WindowSystem& m_windowSystem;
  std::unique_ptr<View> m_view;
};

}  // namespace platform
