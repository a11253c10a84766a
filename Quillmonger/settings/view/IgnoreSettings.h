#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>

#include "Quillmonger/settings/view/SettingToggle.h"

namespace quillmonger {

/// The switches of the pane "ignore". Main thread.
class IgnoreSettings final : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("made by the program")
  Q_PROPERTY(quillmonger::ToggleModel* ignoreSensitiveData READ ignoreSensitiveData CONSTANT)
  Q_PROPERTY(quillmonger::ToggleModel* ignoreImages READ ignoreImages CONSTANT)

 public:
  /// `defaults` outlives this object.
  explicit IgnoreSettings(defaults::Defaults& defaults);

  [[nodiscard]] ToggleModel* ignoreSensitiveData() { return &m_ignoreSensitiveData; }
  [[nodiscard]] ToggleModel* ignoreImages() { return &m_ignoreImages; }

 private:
  SettingToggle m_ignoreSensitiveData;
  SettingToggle m_ignoreImages;
};

}  // namespace quillmonger
