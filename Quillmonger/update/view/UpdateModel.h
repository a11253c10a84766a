#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>
#include <QStringList>
#include <functional>
#include <string>

#include "Quillmonger/update/UpdateContent.h"

namespace quillmonger {

/// What the updater's window says and asks, for its view. Main thread.
class UpdateModel final : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("made by the program")
  Q_PROPERTY(QString heading READ heading NOTIFY changed)
  Q_PROPERTY(QString message READ message NOTIFY changed)
  Q_PROPERTY(QString notes READ notes NOTIFY changed)
  Q_PROPERTY(bool isBusy READ isBusy NOTIFY changed)
  Q_PROPERTY(double progress READ progress NOTIFY changed)
  Q_PROPERTY(QStringList buttons READ buttons NOTIFY buttonsChanged)

 public:
  using Answer = UpdateContent::Answer;

  explicit UpdateModel(std::string ownVersion) : m_ownVersion(std::move(ownVersion)) {}

  void setStatus(const UpdateStatus& status);
  /// Called with each answer of the user's.
  std::function<void(Answer)> answered;

  [[nodiscard]] QString heading() const { return QString::fromStdString(m_content.heading); }
  [[nodiscard]] QString message() const { return QString::fromStdString(m_content.message); }
  [[nodiscard]] QString notes() const { return QString::fromStdString(m_content.notes); }
  [[nodiscard]] bool isBusy() const { return m_content.progress.has_value(); }
  /// From 0 to 1; below 0 where there is no telling.
  [[nodiscard]] double progress() const { return m_content.progress.value_or(0); }
  /// Their labels, the default one first.
  [[nodiscard]] QStringList buttons() const;

  Q_INVOKABLE void press(int index);
  Q_INVOKABLE void close() { answered(Answer::close); }

 signals:
  void changed();
  void buttonsChanged();

 private:
  std::string m_ownVersion;
  UpdateContent m_content;
};

}  // namespace quillmonger
