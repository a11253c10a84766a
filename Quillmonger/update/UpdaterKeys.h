#pragma once

#include <string>

#include "Defaults/Key.h"

/// What the updater remembers. A switch bound to one of the first two is the updater's own.
namespace quillmonger::updaterkeys {

/// A check is made once a day.
inline const defaults::Key<bool> automaticallyChecksForUpdates{"automaticallyChecksForUpdates", true};
/// What such a check finds is downloaded before the user is told.
inline const defaults::Key<bool> automaticallyDownloadsUpdates{"automaticallyDownloadsUpdates", false};
/// Seconds since 1970 of the last check that got an answer; 0: there was none.
inline const defaults::Key<double> lastUpdateCheck{"lastUpdateCheck", 0};
/// The version that the user does not want to be told of; empty: none.
inline const defaults::Key<std::string> skippedUpdate{"skippedUpdate", ""};

}  // namespace quillmonger::updaterkeys
