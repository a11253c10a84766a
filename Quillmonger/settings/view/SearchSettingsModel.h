#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>

#include "Quillmonger/settings/view/RangeModel.h"
#include "Quillmonger/settings/view/SettingToggle.h"

namespace quillmonger {

/// The controls of the pane "search". Main thread.
class SearchSettingsModel final : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("made by the program")
  Q_PROPERTY(quillmonger::ToggleModel* caseSensitive READ caseSensitive CONSTANT)
  Q_PROPERTY(quillmonger::ToggleModel* regex READ regex CONSTANT)
  Q_PROPERTY(quillmonger::ToggleModel* appName READ appName CONSTANT)
  Q_PROPERTY(quillmonger::RangeModel* debounceInterval READ debounceInterval CONSTANT)

 public:
  /// `defaults` outlives this object.
  explicit SearchSettingsModel(defaults::Defaults& defaults);

  [[nodiscard]] ToggleModel* caseSensitive() { return &m_caseSensitive; }
  [[nodiscard]] ToggleModel* regex() { return &m_regex; }
  [[nodiscard]] ToggleModel* appName() { return &m_appName; }
  /// In seconds.
  [[nodiscard]] RangeModel* debounceInterval() { return &m_debounceInterval; }

 private:
  SettingToggle m_caseSensitive;
  SettingToggle m_regex;
  SettingToggle m_appName;
  RangeModel m_debounceInterval;
};

}  // namespace quillmonger
