#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>

#include "Defaults/Toggle.h"

namespace quillmonger {

/// A switch of a pane. A change is written at once, and one from elsewhere is seen at once. Main thread.
class ToggleModel final : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("made by the program")
  Q_PROPERTY(QString label READ label CONSTANT)
  Q_PROPERTY(bool isOn READ isOn NOTIFY isOnChanged)

 public:
  /// `textKey`: that of the switch's title. `defaults` outlives this object.
  ToggleModel(const char* textKey, defaults::Defaults& defaults, const defaults::Key<bool>& key);

  /// In the user's language.
  [[nodiscard]] QString label() const;
  [[nodiscard]] bool isOn() const { return m_toggle.isOn(); }
  Q_INVOKABLE void flip() { m_toggle.flip(); }

 signals:
  void isOnChanged();

 private:
  defaults::Toggle m_toggle;
};

}  // namespace quillmonger
