#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>

#include "KeyboardShortcuts/view/Recorders.h"
#include "Quillmonger/settings/panes/ShortcutReset.h"
#include "Quillmonger/settings/view/SettingToggle.h"

namespace quillmonger {

/// The controls of the pane "keyBindings". Main thread.
class KeyBindingsSettings final : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("made by the program")
  Q_PROPERTY(keyboardshortcuts::Recorders* recorders READ recorders CONSTANT)
  Q_PROPERTY(quillmonger::ToggleModel* quickPaste READ quickPaste CONSTANT)

 public:
  /// All that is named here outlives this object.
  KeyBindingsSettings(defaults::Defaults& defaults, const keyboardshortcuts::RecorderCocoa::Surroundings& surroundings);

  [[nodiscard]] keyboardshortcuts::Recorders* recorders() { return &m_recorders; }
  [[nodiscard]] ToggleModel* quickPaste() { return &m_quickPaste; }

  Q_INVOKABLE void restoreDefaults() { m_reset.ask(); }

 private:
  keyboardshortcuts::Recorders m_recorders;
  SettingToggle m_quickPaste;
  ShortcutReset m_reset;
};

}  // namespace quillmonger
