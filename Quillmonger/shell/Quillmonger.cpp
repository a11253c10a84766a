#include "Quillmonger/shell/Quillmonger.h"

#include <optional>
#include <string_view>

#include "Defaults/Defaults.h"
#include "Foundation/Output.h"
#include "Foundation/Url.h"
#include "Quillmonger/input/ShortcutNames.h"
#include "Quillmonger/settings/SettingsKeys.h"

namespace quillmonger {

namespace {

constexpr auto urlScheme = "quillmonger";
constexpr std::size_t longestPrintedUrl = 2048;

std::string printed(const std::optional<std::string>& text) {
  return text ? "Optional(\"" + *text + "\")" : std::string("nil");
}

// What stands before the first colon, in lower case; absent when that is no scheme.
std::optional<std::string> schemeOf(const std::string& text) {
  const auto url = foundation::Url::parse(text.substr(0, text.find(':') + 1));
  return url ? url->scheme() : std::nullopt;
}

// Another program wrote the text: what no URL holds, a line end above all, is escaped, and the length is bounded.
std::string printable(const std::string& text) {
  return foundation::addingPercentEscapes(std::string_view(text).substr(0, longestPrintedUrl), ":/?#[]@!$&'()*+,;=%");
}

void openUrl(const std::string& text) {
  foundation::printLine("application start url = ", printable(text));
  const auto scheme = schemeOf(text);
  if (scheme != urlScheme) {
    foundation::printLine("unknown url scheme: ", printed(scheme));
    return;
  }
  const auto url = foundation::Url::parse(text);
  if (url) {
    foundation::printLine("unknown url action: ", printed(url->host()));
  } else {
    foundation::printLine("invalid url: ", printable(text));
  }
}

}  // namespace

Quillmonger::Quillmonger(const Platform& platform)
    : m_platform(platform),
      m_oculetManager(makeOculetManager()),
      m_pasteInjection(platform.permissionsManager, platform.sauce, platform.pasteKeys, platform.runLoop,
                       platform.notificationCenter, platform.defaults),
      m_ignoredApps(platform.defaults, platform.applicationBundles),
      m_clipboardManager({platform.pasteboard, platform.context, platform.bundleProvider, m_pasteInjection,
                          platform.runLoop, platform.notificationCenter, platform.defaults, m_ignoredApps}),
      m_reviewManager(platform.appStoreDeepLink),
      m_searchViewModel(platform.runLoop, platform.defaults),
      m_searchManager(platform.backgroundQueue, platform.runLoop, platform.defaults),
      m_clipboardViewModel({m_clipboardManager, platform.context, m_searchViewModel, m_searchManager,
                            platform.applicationNaming, m_oculetManager, platform.pictureReading, platform.texts,
                            platform.eventMonitoring, platform.shortcuts, platform.runLoop, platform.notificationCenter,
                            platform.defaults}),
      m_commandedHistory(
          {m_clipboardManager, m_clipboardViewModel, m_searchManager, platform.runLoop, platform.notificationCenter}),
      m_windowManager({m_clipboardViewModel, m_searchViewModel, platform.gettingStartedWindow, platform.appWindow,
                       platform.settingsWindowController, platform.aboutWindow, platform.updateWindow,
                       platform.previewPanel, m_reviewManager, platform.motion, platform.application,
                       platform.eventMonitoring, platform.runLoop, platform.notificationCenter}),
      m_statusBarManager({windowsOfStatusBar(), platform.updater, platform.statusBar, platform.application,
                          platform.texts, platform.motion, platform.runLoop, platform.notificationCenter,
                          platform.defaults}),
      m_audioManager({platform.resources, platform.makeAudioPlayer, platform.notificationCenter, platform.defaults}) {
  m_pasteInjection.setDismissal([this] { m_windowManager.hideAppWindow(); });
  m_platform.shortcuts.declare(shortcutname::activate());
}

StatusBarManager::Windows Quillmonger::windowsOfStatusBar() {
  return {.showAboutWindow = [this] { m_windowManager.showAboutWindow(); },
          .toggleAppWindow = [this] { m_windowManager.toggleAppWindow(); },
          .showSettingsWindow = [this] { m_windowManager.showSettingsWindow(); },
          .hideAppWindow = [this] { m_windowManager.hideAppWindow(); }};
}

IgnoreAppsViewModel& Quillmonger::ignoreAppsViewModel() {
  if (!m_ignoreAppsViewModel) {
    m_ignoreAppsViewModel.emplace(
        IgnoreAppsViewModel::Collaborators{m_platform.defaults, m_platform.applicationBundles, m_platform.appPicker});
  }
  return *m_ignoreAppsViewModel;
}

void Quillmonger::start() {
  if (m_platform.defaults[keys::firstLaunch]) {
    startGettingStarted();
  } else {
    startNormally();
  }
}

void Quillmonger::startGettingStarted() {
  m_platform.application.setActivationPolicy(Application::ActivationPolicy::regular);
  m_platform.application.activateIgnoringOtherApps();
  m_windowManager.showGettingStartedWindow();
}

void Quillmonger::startNormally() {
  m_isStartedNormally = true;
  m_platform.application.setActivationPolicy(Application::ActivationPolicy::accessory);
  m_statusBarManager.setup();
  m_subscriptions.push_back(
      m_platform.notificationCenter.observe("PasteSucceeded", [this](const auto& /*paste*/) { pasteSucceeded(); }));
  m_clipboardManager.startListening();
  m_subscriptions.push_back(
      m_platform.shortcuts.onKeyUp(shortcutname::activate(), [this] { m_windowManager.toggleAppWindow(); }));
  m_platform.updater.startUpdater();
  if (!m_platform.defaults[keys::persistHistory]) m_clipboardViewModel.deleteAllItems();
}

void Quillmonger::finishGettingStarted() {
  if (m_isStartedNormally) return;
  m_platform.defaults.set(keys::firstLaunch, false);
  m_windowManager.hideGettingStartedWindow();
  start();
  m_windowManager.showAppWindow();
}

void Quillmonger::show() {
  if (m_isStartedNormally) {
    m_windowManager.showAppWindow();
  } else {
    m_windowManager.showGettingStartedWindow();
  }
}

void Quillmonger::toggle() {
  if (m_isStartedNormally) {
    m_windowManager.toggleAppWindow();
  } else {
    m_windowManager.showGettingStartedWindow();
  }
}

void Quillmonger::showSettings() { m_windowManager.showSettingsWindow(); }

void Quillmonger::showAbout() { m_windowManager.showAboutWindow(); }

void Quillmonger::applicationDidResignActive() { m_windowManager.applicationDidResignActive(); }

void Quillmonger::saveChanges() {
  const auto outcome = m_platform.context.save();
  if (!outcome) foundation::printLine("unable to save context changes: ", outcome.error().message);
}

void Quillmonger::quitApp() { m_platform.application.terminate(); }

void Quillmonger::openURLs(const std::vector<std::string>& urls) {
  for (const auto& url : urls)
    openUrl(url);
}

void Quillmonger::pasteSucceeded() {
  m_platform.defaults.set(keys::numberOfPastes, m_platform.defaults[keys::numberOfPastes] + 1);
}

}  // namespace quillmonger
