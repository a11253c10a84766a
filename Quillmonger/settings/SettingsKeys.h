#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "Defaults/Defaults.h"
#include "Defaults/Key.h"
#include "Quillmonger/settings/ColorScheme.h"
#include "Quillmonger/settings/TruncationMode.h"

namespace quillmonger {

/// Everything that the program remembers of the user's choices: the one place that names a default.
namespace keys {

inline const defaults::Key<bool> alwaysPasteWithoutFormatting{"alwaysPasteWithoutFormatting", false};
/// The greatest number of history items; the history's clean-up removes the excess.
inline const defaults::Key<std::int64_t> historySize{"historySize", 10};
/// The URLs of applications whose copies are not captured; `IgnoredApps` reads them.
inline const defaults::Key<std::vector<std::string>> ignoredApps{
    "ignoredApps", {"file:///System/Applications/Utilities/Keychain%20Access.app/"}};
/// Off: the whole history is deleted at every start.
inline const defaults::Key<bool> persistHistory{"persistHistory", false};
inline const defaults::Key<bool> quickPaste{"quickPaste", false};
inline const defaults::Key<bool> searchCaseSensitive{"searchCaseSensitive", false};
inline const defaults::Key<bool> searchRegex{"searchRegex", false};
/// Seconds from the last keystroke to the search.
inline const defaults::Key<double> searchDebounceInterval{"searchDebounceInterval", 0.15};
inline const defaults::Key<TruncationMode> truncationMode{"truncationMode", TruncationMode::middle};
inline const defaults::Key<bool> showSourceAppIcon{"showSourceAppIcon", true};
inline const defaults::Key<bool> showKeyboardShortcuts{"showKeyboardShortcuts", true};
inline const defaults::Key<bool> showScrollbar{"showScrollbar", true};
/// The guide runs at start instead of the normal start.
inline const defaults::Key<bool> firstLaunch{"firstLaunch", true};
/// Absent: as the desktop.
inline const defaults::Key<std::optional<ColorScheme>> selectedColorScheme{"selectedColorScheme", std::nullopt};
inline const defaults::Key<bool> isIncognitoMode{"isIncognitoMode", false};
inline const defaults::Key<bool> autoOpenImagePreview{"autoOpenImagePreview", true};
inline const defaults::Key<bool> autoOpenOculet{"autoOpenOculet", true};
inline const defaults::Key<bool> ignoreImages{"ignoreImages", false};
inline const defaults::Key<bool> searchAppName{"searchAppName", true};
inline const defaults::Key<bool> ignoreSensitiveData{"ignoreSensitiveData", true};
inline const defaults::Key<bool> hideLongTextPreview{"hideLongTextPreview", true};
inline const defaults::Key<bool> animateMenuBar{"animateMenuBar", true};
/// Off: a chosen item is only placed on the pasteboard.
inline const defaults::Key<bool> pasteToApp{"pasteToApp", true};
inline const defaults::Key<bool> soundEffectsEnabled{"soundEffectsEnabled", true};
/// From 0 to 1.
inline const defaults::Key<float> soundVolume{"soundVolume", 0.45F};
inline const defaults::Key<bool> showContentTypeIndicators{"showContentTypeIndicators", true};
inline const defaults::Key<bool> showColorIndicator{"showColorIndicator", true};
inline const defaults::Key<bool> showPreviewPaneScrollbar{"showPreviewPaneScrollbar", true};
/// Finished pastes in the program's whole life.
inline const defaults::Key<std::int64_t> numberOfPastes{"numberOfPastes", 0};

}  // namespace keys

/// Calls `body` with each key of the table.
template <typename Body>
void forEachSettingsKey(Body body) {
  using namespace keys;
  const auto each = [&body](const auto&... key) { (body(key), ...); };
  each(alwaysPasteWithoutFormatting, historySize, ignoredApps, persistHistory, quickPaste, searchCaseSensitive,
       searchRegex, searchDebounceInterval, truncationMode, showSourceAppIcon, showKeyboardShortcuts, showScrollbar,
       firstLaunch, selectedColorScheme, isIncognitoMode, autoOpenImagePreview, autoOpenOculet, ignoreImages,
       searchAppName, ignoreSensitiveData, hideLongTextPreview, animateMenuBar, pasteToApp, soundEffectsEnabled,
       soundVolume, showContentTypeIndicators, showColorIndicator, showPreviewPaneScrollbar, numberOfPastes);
}

/// Registers the default of each key of the table with the store.
void declareSettings(defaults::Defaults& settings);

}  // namespace quillmonger
