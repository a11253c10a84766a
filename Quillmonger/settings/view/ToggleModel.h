#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>

namespace quillmonger {

/// A switch of a pane. Main thread.
class ToggleModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("made by the program")
  Q_PROPERTY(QString label READ label CONSTANT)
  Q_PROPERTY(bool isOn READ isOn NOTIFY isOnChanged)

 public:
  /// In the user's language.
  [[nodiscard]] virtual QString label() const = 0;
  [[nodiscard]] virtual bool isOn() const = 0;
  Q_INVOKABLE virtual void flip() = 0;

 signals:
  void isOnChanged();
};

}  // namespace quillmonger
