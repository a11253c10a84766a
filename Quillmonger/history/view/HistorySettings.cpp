#include "Quillmonger/history/view/HistorySettings.h"

#include "Quillmonger/settings/SettingsKeys.h"

namespace quillmonger {

namespace {

HistorySettings::TruncationMode viewMode(TruncationMode mode) {
  switch (mode) {
    case TruncationMode::head:
      return HistorySettings::Head;
    case TruncationMode::middle:
      return HistorySettings::Middle;
    case TruncationMode::tail:
      return HistorySettings::Tail;
  }
  return HistorySettings::Tail;
}

}  // namespace

HistorySettings::HistorySettings(defaults::Defaults& defaults) {
  follow(defaults, keys::showSourceAppIcon, m_showSourceAppIcon);
  follow(defaults, keys::showKeyboardShortcuts, m_showKeyboardShortcuts);
  follow(defaults, keys::showContentTypeIndicators, m_showContentTypeIndicators);
  follow(defaults, keys::showColorIndicator, m_showColorIndicator);
  follow(defaults, keys::showScrollbar, m_showScrollbar);
  follow(defaults, keys::alwaysPasteWithoutFormatting, m_alwaysPasteWithoutFormatting);
  m_subscriptions.push_back(defaults.updates<quillmonger::TruncationMode>(
      keys::truncationMode, defaults::Defaults::Initial::yes, [this](const quillmonger::TruncationMode& mode) {
        m_truncationMode = viewMode(mode);
        emit changed();
      }));
}

void HistorySettings::follow(defaults::Defaults& defaults, const defaults::Key<bool>& key, bool& value) {
  m_subscriptions.push_back(
      defaults.updates<bool>(key, defaults::Defaults::Initial::yes, [this, &value](const bool& present) {
        value = present;
        emit changed();
      }));
}

}  // namespace quillmonger
