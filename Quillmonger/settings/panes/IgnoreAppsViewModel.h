#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "Defaults/Defaults.h"
#include "Foundation/Published.h"
#include "Quillmonger/capture/ApplicationBundles.h"
#include "Quillmonger/capture/IgnoredApps.h"
#include "Quillmonger/capture/SystemApp.h"
#include "Quillmonger/settings/panes/AppPicker.h"

namespace quillmonger {

/// The list of ignored applications as the user edits it. What is changed here is stored at once. Main thread.
class IgnoreAppsViewModel final {
 public:
  struct Collaborators {
    defaults::Defaults& defaults;
    const ApplicationBundles& applicationBundles;
    AppPicker& appPicker;
  };

  /// Reads the list, and for it each of its applications. All collaborators outlive this object.
  explicit IgnoreAppsViewModel(const Collaborators& collaborators);
  IgnoreAppsViewModel(const IgnoreAppsViewModel&) = delete;
  IgnoreAppsViewModel& operator=(const IgnoreAppsViewModel&) = delete;
  ~IgnoreAppsViewModel() = default;

  /// The rows, in the order in which they were added.
  [[nodiscard]] foundation::Published<std::vector<SystemApp>>& apps() { return m_apps; }
  /// The selected row. It can be set, and may name an application that is no row any more.
  [[nodiscard]] foundation::Published<std::optional<SystemApp>>& selectedApp() { return m_selectedApp; }

  /// Lets the user choose an application and adds that. Nothing happens for a choice that is no application.
  void addApp();
  /// Appends the application and selects it; only selects it when it is listed.
  void add(const SystemApp& app);
  /// Takes the application from the list. When it was selected, the row that took its place is then, or the last one.
  void removeApp(const SystemApp& app);

 private:
  void addApplicationAt(const foundation::Url& url);
  void store(const std::vector<SystemApp>& apps);

  Collaborators m_with;
  IgnoredApps m_ignoredApps;
  foundation::Published<std::vector<SystemApp>> m_apps;
  foundation::Published<std::optional<SystemApp>> m_selectedApp;
  std::shared_ptr<const bool> m_isAlive = std::make_shared<const bool>(true);
};

/// What a list shows for the application: its name, or for one that says none the name of its file without extension.
[[nodiscard]] std::string shownName(const SystemApp& app);

}  // namespace quillmonger
