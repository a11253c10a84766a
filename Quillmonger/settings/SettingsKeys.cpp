#include "Quillmonger/settings/SettingsKeys.h"

namespace quillmonger {

void declareSettings(defaults::Defaults& settings) {
  forEachSettingsKey([&settings](const auto& key) { settings.declare(key); });
}

}  // namespace quillmonger
