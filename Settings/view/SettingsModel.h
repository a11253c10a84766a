#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QSizeF>
#include <QVariantList>

#include "Settings/SettingsWindowController.h"

namespace settings {

/// What the settings' window shows around its panes. Main thread.
class SettingsModel final : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("made by the program")
  Q_PROPERTY(QVariantList items READ items CONSTANT)
  Q_PROPERTY(bool isSegmented READ isSegmented CONSTANT)
  Q_PROPERTY(bool showsToolbar READ showsToolbar CONSTANT)
  Q_PROPERTY(int selectedTab READ selectedTab NOTIFY selectedTabChanged)
  Q_PROPERTY(QSizeF windowSize READ windowSize NOTIFY windowSizeChanged)

 public:
  /// `windowSize`: what the window is to have. Both outlive this object.
  SettingsModel(SettingsWindowController& controller, foundation::Published<Size>& windowSize);

  /// Each with `identifier`, `title`, `icon` and `description`.
  [[nodiscard]] QVariantList items() const;
  [[nodiscard]] bool isSegmented() const;
  [[nodiscard]] bool showsToolbar() const { return m_controller.isToolbarShown(); }
  /// -1 before a pane is shown.
  [[nodiscard]] int selectedTab() const;
  [[nodiscard]] QSizeF windowSize() const;

  /// Nothing happens for a pane that isn't there.
  Q_INVOKABLE void choose(int pane);

 signals:
  void selectedTabChanged();
  void windowSizeChanged();

 private:
  [[nodiscard]] SettingsStyleController& style() const;

  SettingsWindowController& m_controller;
  foundation::Published<Size>& m_windowSize;
  foundation::Subscription m_selection;
  foundation::Subscription m_sizes;
};

}  // namespace settings
