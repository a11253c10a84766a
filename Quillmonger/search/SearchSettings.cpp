#include "Quillmonger/search/SearchSettings.h"

#include "Defaults/Defaults.h"
#include "Quillmonger/settings/SettingsKeys.h"

namespace quillmonger {

SearchOptions searchOptions(const defaults::Defaults& defaults) {
  return {.isRegularExpression = defaults[keys::searchRegex],
          .isCaseSensitive = defaults[keys::searchCaseSensitive],
          .includesAppName = defaults[keys::searchAppName]};
}

}  // namespace quillmonger
