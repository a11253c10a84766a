#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>

#include "Quillmonger/settings/panes/HistoryClearing.h"
#include "Quillmonger/settings/view/ChoiceModel.h"
#include "Quillmonger/settings/view/LaunchAtLoginToggle.h"
#include "Quillmonger/settings/view/RangeModel.h"
#include "Quillmonger/settings/view/SettingToggle.h"
#include "Quillmonger/update/Updater.h"

namespace quillmonger {

/// The controls of the pane "general". Main thread.
class GeneralSettings final : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("made by the program")
  Q_PROPERTY(quillmonger::ToggleModel* soundEffects READ soundEffects CONSTANT)
  Q_PROPERTY(quillmonger::RangeModel* soundVolume READ soundVolume CONSTANT)
  Q_PROPERTY(quillmonger::ToggleModel* launchAtLogin READ launchAtLogin CONSTANT)
  Q_PROPERTY(quillmonger::ToggleModel* firstLaunch READ firstLaunch CONSTANT)
  Q_PROPERTY(bool canUpdate READ canUpdate CONSTANT)
  Q_PROPERTY(quillmonger::ToggleModel* checksForUpdates READ checksForUpdates CONSTANT)
  Q_PROPERTY(quillmonger::ToggleModel* downloadsUpdates READ downloadsUpdates CONSTANT)
  Q_PROPERTY(quillmonger::ToggleModel* pasteWithoutFormatting READ pasteWithoutFormatting CONSTANT)
  Q_PROPERTY(quillmonger::ChoiceModel* historySize READ historySize CONSTANT)
  Q_PROPERTY(quillmonger::ToggleModel* persistHistory READ persistHistory CONSTANT)
  Q_PROPERTY(quillmonger::ChoiceModel* pasteToApp READ pasteToApp CONSTANT)

 public:
  struct Collaborators {
    defaults::Defaults& defaults;
    launchatlogin::LaunchAtLogin& launchAtLogin;
    const Updater& updater;
    HistoryClearing& historyClearing;
  };

  /// All collaborators outlive this object.
  explicit GeneralSettings(const Collaborators& collaborators);

  [[nodiscard]] ToggleModel* soundEffects() { return &m_soundEffects; }
  [[nodiscard]] RangeModel* soundVolume() { return &m_soundVolume; }
  [[nodiscard]] ToggleModel* launchAtLogin() { return &m_launchAtLogin; }
  [[nodiscard]] ToggleModel* firstLaunch() { return &m_firstLaunch; }
  /// Whether there is a place to ask for updates.
  [[nodiscard]] bool canUpdate() const { return m_updater.hasFeed(); }
  [[nodiscard]] ToggleModel* checksForUpdates() { return &m_checksForUpdates; }
  [[nodiscard]] ToggleModel* downloadsUpdates() { return &m_downloadsUpdates; }
  [[nodiscard]] ToggleModel* pasteWithoutFormatting() { return &m_pasteWithoutFormatting; }
  [[nodiscard]] ChoiceModel* historySize() { return &m_historySize; }
  [[nodiscard]] ToggleModel* persistHistory() { return &m_persistHistory; }
  /// The first option pastes into the application, the second only puts the item on the clipboard.
  [[nodiscard]] ChoiceModel* pasteToApp() { return &m_pasteToApp; }

  /// Asks first.
  Q_INVOKABLE void clearHistory() { m_historyClearing.ask(); }
  /// Reads anew what other programs may have changed.
  Q_INVOKABLE void refresh() { m_launchAtLogin.refresh(); }

 private:
  SettingToggle m_soundEffects;
  RangeModel m_soundVolume;
  LaunchAtLoginToggle m_launchAtLogin;
  SettingToggle m_firstLaunch;
  const Updater& m_updater;
  SettingToggle m_checksForUpdates;
  SettingToggle m_downloadsUpdates;
  SettingToggle m_pasteWithoutFormatting;
  ChoiceModel m_historySize;
  SettingToggle m_persistHistory;
  ChoiceModel m_pasteToApp;
  HistoryClearing& m_historyClearing;
};

}  // namespace quillmonger
