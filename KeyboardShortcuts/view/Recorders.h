#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>
#include <memory>
#include <vector>

#include "KeyboardShortcuts/RecorderCocoa.h"

namespace keyboardshortcuts {

/// Makes the logic of a view's recorder fields. Main thread.
class Recorders final : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("made by the program")

 public:
  /// `names`: those that fields may edit. All that `surroundings` names outlives every recorder.
  Recorders(RecorderCocoa::Surroundings surroundings, std::vector<Name> names);

  /// Another name than those stops the process.
  [[nodiscard]] std::unique_ptr<RecorderCocoa> make(const QString& name, RecorderView& view) const;

 private:
  RecorderCocoa::Surroundings m_surroundings;
  std::vector<Name> m_names;
};

}  // namespace keyboardshortcuts
