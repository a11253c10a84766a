#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>

#include "Quillmonger/settings/view/ChoiceModel.h"
#include "Quillmonger/settings/view/SettingToggle.h"

namespace quillmonger {

/// The controls of the pane "appearance". Main thread.
class AppearanceSettings final : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("made by the program")
  Q_PROPERTY(quillmonger::ChoiceModel* colorScheme READ colorScheme CONSTANT)
  Q_PROPERTY(quillmonger::ToggleModel* animateMenuBar READ animateMenuBar CONSTANT)
  Q_PROPERTY(quillmonger::ToggleModel* sourceAppIcon READ sourceAppIcon CONSTANT)
  Q_PROPERTY(quillmonger::ToggleModel* keyboardShortcuts READ keyboardShortcuts CONSTANT)
  Q_PROPERTY(quillmonger::ToggleModel* scrollbar READ scrollbar CONSTANT)
  Q_PROPERTY(quillmonger::ToggleModel* colorIndicator READ colorIndicator CONSTANT)
  Q_PROPERTY(quillmonger::ToggleModel* contentTypeIndicators READ contentTypeIndicators CONSTANT)
  Q_PROPERTY(quillmonger::ChoiceModel* truncationMode READ truncationMode CONSTANT)
  Q_PROPERTY(quillmonger::ToggleModel* hideLongText READ hideLongText CONSTANT)
  Q_PROPERTY(quillmonger::ToggleModel* previewScrollbar READ previewScrollbar CONSTANT)
  Q_PROPERTY(quillmonger::ToggleModel* autoOpenImage READ autoOpenImage CONSTANT)
  Q_PROPERTY(quillmonger::ToggleModel* autoOpenOculet READ autoOpenOculet CONSTANT)

 public:
  /// `defaults` outlives this object.
  explicit AppearanceSettings(defaults::Defaults& defaults);

  [[nodiscard]] ChoiceModel* colorScheme() { return &m_colorScheme; }
  [[nodiscard]] ToggleModel* animateMenuBar() { return &m_animateMenuBar; }
  [[nodiscard]] ToggleModel* sourceAppIcon() { return &m_sourceAppIcon; }
  [[nodiscard]] ToggleModel* keyboardShortcuts() { return &m_keyboardShortcuts; }
  [[nodiscard]] ToggleModel* scrollbar() { return &m_scrollbar; }
  [[nodiscard]] ToggleModel* colorIndicator() { return &m_colorIndicator; }
  [[nodiscard]] ToggleModel* contentTypeIndicators() { return &m_contentTypeIndicators; }
  [[nodiscard]] ChoiceModel* truncationMode() { return &m_truncationMode; }
  [[nodiscard]] ToggleModel* hideLongText() { return &m_hideLongText; }
  [[nodiscard]] ToggleModel* previewScrollbar() { return &m_previewScrollbar; }
  [[nodiscard]] ToggleModel* autoOpenImage() { return &m_autoOpenImage; }
  [[nodiscard]] ToggleModel* autoOpenOculet() { return &m_autoOpenOculet; }

 private:
  ChoiceModel m_colorScheme;
  SettingToggle m_animateMenuBar;
  SettingToggle m_sourceAppIcon;
  SettingToggle m_keyboardShortcuts;
  SettingToggle m_scrollbar;
  SettingToggle m_colorIndicator;
  SettingToggle m_contentTypeIndicators;
  ChoiceModel m_truncationMode;
  SettingToggle m_hideLongText;
  SettingToggle m_previewScrollbar;
  SettingToggle m_autoOpenImage;
  SettingToggle m_autoOpenOculet;
};

}  // namespace quillmonger
