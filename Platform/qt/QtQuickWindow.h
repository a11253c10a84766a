#pragma once

#include <QSize>
#include <QString>
#include <QUrl>
#include <QVariantMap>
#include <functional>
#include <memory>

#include "Quillmonger/shell/windows/Panel.h"
#include "Quillmonger/shell/windows/WindowSystem.h"

class QQmlEngine;
class QQuickView;
class QScreen;

namespace platform {

class QuickView;

/// A window whose content is a Qt Quick view tree. The tree is loaded when it is first needed, or earlier by
/// `prepare`, and stays painted while the window is hidden, so that showing it is instant.
class QtQuickWindow final : public quillmonger::Panel {
 public:
  enum class Kind {
    palette,    ///< no frame, above the other windows, no entry in the task list, corners of the content's own
    companion,  ///< a palette beside another one, which keeps the keyboard whatever is clicked
    plain,      ///< no frame, at least of its size, corners of the content's own
    dialog      ///< the desktop's frame, fixed size
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
  QtQuickWindow(const QtQuickWindow&) = delete;
  QtQuickWindow& operator=(const QtQuickWindow&) = delete;
  ~QtQuickWindow() override;

  /// Loads and paints the tree, unless that is done. Takes tens of milliseconds: called in an idle turn after the
  /// start, it spares the first show that time. A tree that can't be loaded is a fault of the program and stops it.
  void prepare();
  /// Takes it off the screen and lets go of the tree, before the objects that it shows go.
  void unload();

  [[nodiscard]] bool isVisible() const override;
  [[nodiscard]] quillmonger::WindowFrame frame() const override;
  [[nodiscard]] int level() const override { return m_level; }
  /// Of a companion, the width that its content wants. Loads the tree.
  [[nodiscard]] double paneWidth() override;
  void setFrame(const quillmonger::WindowFrame& frame) override;
  void setAlpha(double alpha) override;
  void setLevel(int level) override;
  /// On the screen with the window that has the keyboard, or else with the pointer.
  void center() override;
  void makeRoomAtRight(double width) override;
  void orderFront() override;
  void makeKeyAndOrderFront() override;
  void orderOut() override;

  /// Null before `prepare`.
  [[nodiscard]] QQuickView* view() const;

 private:
  void applyKind();
  void followSize();
  void applySize(const QSize& size);
  void fixSize(const QSize& size);
  [[nodiscard]] int shownWidth(double width) const;
  void prepareToShow();
  [[nodiscard]] QScreen* screenInUse() const;

  Description m_description;
  quillmonger::WindowSystem& m_windowSystem;
  int m_level;
  double m_width;  // of a companion's frame
  std::unique_ptr<QuickView> m_view;
};

}  // namespace platform
