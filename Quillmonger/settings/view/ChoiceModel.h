#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QStringList>
#include <utility>
#include <vector>

#include "Quillmonger/settings/panes/SettingChoice.h"

namespace quillmonger {

/// A setting with a few values, as a picker or a group of radio buttons shows it. Main thread.
class ChoiceModel final : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("made by the program")
  Q_PROPERTY(QStringList titles READ titles CONSTANT)
  Q_PROPERTY(int selected READ selected NOTIFY changed)
  Q_PROPERTY(QString selectedTitle READ selectedTitle NOTIFY changed)

 public:
  /// `defaults` outlives this object.
  template <typename T>
  ChoiceModel(defaults::Defaults& defaults, const defaults::Key<T>& key, std::vector<SettingChoice::Option<T>> options)
      : m_choice(defaults, key, std::move(options), [this] { emit changed(); }) {}

  /// In the user's language.
  [[nodiscard]] QStringList titles() const;
  /// -1 for a value that no option has.
  [[nodiscard]] int selected() const;
  [[nodiscard]] QString selectedTitle() const;
  /// Nothing happens for an option that isn't there.
  Q_INVOKABLE void select(int option);

 signals:
  void changed();

 private:
  SettingChoice m_choice;
};

}  // namespace quillmonger
