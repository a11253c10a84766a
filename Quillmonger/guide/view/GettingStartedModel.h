#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>
#include <functional>

namespace quillmonger {

/// What the guide tells, and its end. Main thread.
class GettingStartedModel final : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("made by the program")
  Q_PROPERTY(QString chord READ chord NOTIFY chordChanged)

 public:
  /// `chord`: the keys that show the history, in the platform's words.
  GettingStartedModel(QString chord, std::function<void()> finish);

  [[nodiscard]] QString chord() const { return m_chord; }
  void setChord(const QString& chord);

  Q_INVOKABLE void finish() { m_finish(); }

 signals:
  void chordChanged();

 private:
  QString m_chord;
  std::function<void()> m_finish;
};

}  // namespace quillmonger
