#include "Quillmonger/capture/IgnoredApps.h"

#include <algorithm>
#include <utility>

#include "Foundation/Output.h"
#include "Quillmonger/settings/SettingsKeys.h"

namespace quillmonger {

namespace {

// The built-in entry is meant for a system that has this application; elsewhere it stands without it.
constexpr std::string_view builtInIdentifier = "com.apple.keychainaccess";

bool isBuiltIn(const std::string& text) { return text == keys::ignoredApps.defaultValue().front(); }

}  // namespace

IgnoredApps::IgnoredApps(const defaults::Defaults& settings, const ApplicationBundles& bundles)
    : m_settings(settings), m_bundles(bundles) {}

std::vector<SystemApp> IgnoredApps::apps() const {
  std::vector<SystemApp> apps;
  for (const auto& text : m_settings[keys::ignoredApps]) {
    if (auto app = decode(text)) {
      apps.push_back(*std::move(app));
    } else {
      foundation::printLine("could not decode object '" + text + "' into url");
    }
  }
  return apps;
}

bool IgnoredApps::contains(std::string_view bundleIdentifier) const {
  const auto present = apps();
  return std::ranges::any_of(present, [&](const auto& app) { return app.bundleIdentifier == bundleIdentifier; });
}

std::optional<SystemApp> IgnoredApps::decode(const std::string& text) const {
  auto url = foundation::Url::parse(text);
  if (!url.has_value()) return std::nullopt;
  const auto bundle = m_bundles.bundleAt(*url);
  const auto name = bundle.has_value() ? bundle->displayName.value_or("") : std::string();
  if (bundle.has_value() && bundle->identifier.has_value()) {
    return SystemApp::make(name, *bundle->identifier, *std::move(url));
  }
  if (isBuiltIn(text)) return SystemApp::make(name, std::string(builtInIdentifier), *std::move(url));
  return std::nullopt;
}

}  // namespace quillmonger
