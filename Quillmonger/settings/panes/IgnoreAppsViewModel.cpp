#include "Quillmonger/settings/panes/IgnoreAppsViewModel.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <utility>

#include "Quillmonger/settings/SettingsKeys.h"

namespace quillmonger {

IgnoreAppsViewModel::IgnoreAppsViewModel(const Collaborators& collaborators)
    : m_with(collaborators),
      m_ignoredApps(collaborators.defaults, collaborators.applicationBundles),
      m_apps(m_ignoredApps.apps()) {}

void IgnoreAppsViewModel::addApp() {
  m_with.appPicker.pickApplication([this, isAlive = std::weak_ptr(m_isAlive)](const auto& url) {
    if (!isAlive.expired() && url) addApplicationAt(*url);
  });
}

void IgnoreAppsViewModel::addApplicationAt(const foundation::Url& url) {
  const auto bundle = m_with.applicationBundles.bundleAt(url);
  if (!bundle || !bundle->identifier) return;
  add(SystemApp::make(bundle->displayName.value_or(""), *bundle->identifier, url));
}

void IgnoreAppsViewModel::add(const SystemApp& app) {
  auto apps = m_apps.value();
  const auto listed = std::ranges::find(apps, app);
  if (listed != apps.end()) {
    m_selectedApp.set(*listed);
    return;
  }
  apps.push_back(app);
  m_apps.set(std::move(apps));
  auto stored = m_ignoredApps.apps();
  stored.push_back(app);
  store(stored);
  m_selectedApp.set(app);
}

void IgnoreAppsViewModel::removeApp(const SystemApp& app) {
  auto apps = m_apps.value();
  const auto listed = std::ranges::find(apps, app);
  if (listed == apps.end()) return;
  // A copy: the caller may have handed in a row or the selected application itself.
  const SystemApp removed = *listed;
  const auto index = static_cast<std::size_t>(listed - apps.begin());
  apps.erase(listed);
  m_apps.set(apps);
  if (m_selectedApp.value() == removed && !apps.empty()) m_selectedApp.set(apps[std::min(index, apps.size() - 1)]);
  auto stored = m_ignoredApps.apps();
  const auto entry = std::ranges::find(stored, removed);
  if (entry == stored.end()) return;
  stored.erase(entry);
  store(stored);
}

void IgnoreAppsViewModel::store(const std::vector<SystemApp>& apps) {
  std::vector<std::string> urls;
  std::ranges::transform(apps, std::back_inserter(urls), [](const auto& app) { return app.url.absoluteString(); });
  m_with.defaults.set(keys::ignoredApps, urls);
}

std::string shownName(const SystemApp& app) {
  return app.name.empty() ? std::filesystem::path(app.relativePath).stem().string() : app.name;
}

}  // namespace quillmonger
