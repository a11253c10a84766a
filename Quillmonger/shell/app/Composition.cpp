#include "Quillmonger/shell/app/Composition.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QFile>
#include <algorithm>
#include <utility>

#include "Foundation/Fatal.h"
#include "Foundation/Output.h"
#include "Platform/freedesktop/PasteboardTypeTable.h"
#include "Platform/freedesktop/SystemLog.h"
#include "Platform/qt/XdgOpen.h"
#include "Platform/sound/SoundProcess.h"
#include "Quillmonger/capture/PasteboardTypes.h"
#include "Quillmonger/resources/Texts.h"
#include "Quillmonger/shell/command/CommandSyntax.h"

namespace quillmonger {

namespace {

constexpr auto supportAddress = "support@quillmonger.example";

template <typename Service>
std::unique_ptr<Service> required(std::unique_ptr<Service> service, std::string_view what) {
  if (!service) foundation::stopProcess("Quillmonger needs an X11 display that offers " + std::string(what) + ".");
  return service;
}

std::string selectionName(const std::vector<std::string>& arguments) {
  return std::string(pasteboardName(arguments).value_or("CLIPBOARD"));
}

std::string resourcePlace(std::string_view name, std::string_view fileExtension) {
  return ":/qt-project.org/imports/Quillmonger/Resources/" + std::string(name) + "." + std::string(fileExtension);
}

std::optional<std::string> resource(std::string_view name, std::string_view fileExtension) {
  auto place = resourcePlace(name, fileExtension);
  if (!QFile::exists(QString::fromStdString(place))) return std::nullopt;
  return place;
}

std::string soundPlayer() {
  return QCoreApplication::applicationDirPath().append(QStringLiteral("/quillmonger-sound")).toStdString();
}

foundation::Url reviewPage() {
  return *foundation::Url::parse("https://quillmonger.example/reviews?action=write-review");
}

std::string pasteboardType(const std::string& mimeType) {
  const auto* entry = platform::PasteboardTypeTable::entryForName(mimeType);
  return entry != nullptr ? std::string(entry->type) : mimeType;
}

}  // namespace

Composition::Composition(const platform::XdgFolders& folders, const std::vector<std::string>& arguments)
    : m_folders(folders),
      m_desktopEntries(folders.dataSearch),
      m_userDefaults(folders.config / "settings.json", m_runLoop),
      m_defaults(m_userDefaults),
      m_windowSystem(required(platform::X11WindowSystem::connect(), "windows")),
      m_hotKeys(required(platform::X11HotKeys::connect(m_runLoop), "the XKEYBOARD extension")),
      m_pasteboard(required(platform::X11Pasteboard::connect(m_runLoop, TypeFilter(), {}, selectionName(arguments)),
                            "the XFIXES extension")),
      m_pasteKeys(required(
          platform::X11PasteKeys::connect([this] { return m_pasteboard->writtenWindow(); },
                                          [this](const std::string& windowClass) { return isTerminal(windowClass); },
                                          [this] { return m_hotKeys->isChordHeld(); }, {}),
          "the XTEST extension")),
      m_inputSources(required(platform::X11InputSources::connect(m_runLoop), "keyboard layouts")),
      m_desktopShortcuts(*m_inputSources, folders.configSearch, platform::XdgFolders::ownEnvironment),
      m_sauce(*m_inputSources, m_notificationCenter),
      m_applicationBundles(m_desktopEntries),
      m_applicationNaming(m_desktopEntries),
      m_bundleProvider([this] { return m_pasteboard->frontmostAtPresentContent(); }, m_desktopEntries),
      m_installedApplications(m_desktopEntries, platform::XdgFolders::ownEnvironment),
      m_application(*m_windowSystem),
      m_desktopPreferences(QDBusConnection::sessionBus()),
      m_motion(m_desktopPreferences, *m_windowSystem),
      m_views(
          m_defaults, *m_windowSystem, [this](const std::string& path) { return iconOf(path); },
          {m_installedApplications, m_backgroundQueue, m_runLoop}, m_notificationCenter,
          [this](const foundation::Url& url) { m_opening.open(url); }),
      m_opening({platform::xdgOpen, m_views.alert(), localizedText, m_runLoop,
                 [this](const std::string& text) { copyText(text); }}),
      m_statusBar(QDBusConnection::sessionBus(), [](const std::string& name) { return resourcePlace(name, "svg"); }),
      m_updates(
          {m_defaults, m_runLoop, m_views.updateModel(), m_views.updateWindow(), m_opening, folders.cache / "updates"}),
      m_autostartEntry(folders.configSearch, QCoreApplication::applicationFilePath().toStdString()),
      m_launchAtLogin(m_autostartEntry,
                      [](const std::string& message) { platform::logError("LaunchAtLogin", message); }),
      m_dialogManager(
          m_views.alert(), localizedText, [this](const foundation::Url& url) { m_opening.open(url); }, supportAddress),
      m_permissionsManager(
          m_postEventAccess, m_views.alert(), localizedText,
          [this](const foundation::Url& url) { m_opening.open(url); }, m_runLoop),
      m_contextProvider(m_dialogManager, folders.data, m_runLoop),
      m_shortcuts(*m_hotKeys, m_desktopShortcuts, m_userDefaults, m_notificationCenter),
      m_root({m_runLoop,
              m_backgroundQueue,
              m_notificationCenter,
              m_defaults,
              m_shortcuts,
              m_contextProvider.context(),
              *m_pasteboard,
              m_bundleProvider,
              m_applicationBundles,
              m_applicationNaming,
              m_pictureReading,
              localizedText,
              m_permissionsManager,
              m_sauce,
              *m_pasteKeys,
              m_eventMonitor,
              m_application,
              m_views.gettingStartedWindow(),
              m_views.appWindow(),
              m_views.settingsWindowController(),
              m_views.aboutWindow(),
              m_views.updateWindow(),
              m_views.previewPanel(),
              m_motion,
              m_views.appPicker(),
              m_statusBar,
              m_updates.updater(),
              reviewPage(),
              resource,
              platform::SoundProcess::factory(soundPlayer())}),
      m_commandLine(commandOperations(), m_root.commandedHistory(), m_defaults) {
  m_views.follow(m_desktopPreferences, m_motion);
  m_views.feed(m_root, *m_pasteboard, m_eventMonitor,
               {m_launchAtLogin, m_updates.updater(), m_shortcuts, *m_inputSources, m_recordedEvents,
                [this] { m_windowSystem->beep(); }});
  m_resigning = m_application.onDidResignActive([this] { m_root.applicationDidResignActive(); });
}

// The views show what the root owns, and the root needs their windows from its first moment on: neither can simply be
// made after the other.
Composition::~Composition() {
  m_resigning.cancel();
  m_views.close();
}

bool Composition::isTerminal(const std::string& windowClass) const {
  const auto entries = m_desktopEntries.present();
  const auto* entry = platform::matchingEntry(*entries, {0, std::nullopt, windowClass, windowClass}, std::nullopt);
  return entry != nullptr && std::ranges::find(entry->categories, "TerminalEmulator") != entry->categories.end();
}

std::optional<std::string> Composition::iconOf(const std::string& path) const {
  const auto entry = m_desktopEntries.at(foundation::Url::fromFilePath(path));
  return entry ? std::optional(entry->icon) : std::nullopt;
}

void Composition::copyText(const std::string& text) {
  m_pasteboard->clearContents();
  m_pasteboard->setString(text, pasteboardtype::NSPasteboardTypeString);
}

void Composition::launch(const std::vector<std::string>& arguments) {
  m_root.start();
  std::vector<std::string> urls;
  std::ranges::copy_if(arguments, std::back_inserter(urls), isUrlWord);
  m_root.openURLs(urls);
  listenToCommands();
  tellServices();
  // The first copy asks which application it came from: by then the installed ones have been read.
  m_backgroundQueue.async([this] { static_cast<void>(m_desktopEntries.present()); });
  // In a later turn: whoever waits for the start need not wait for the window, nor the first chord for its views.
  m_runLoop.post([this] { m_views.appWindow().prepare(); });
}

void Composition::saveChanges() {
  m_root.saveChanges();
  m_userDefaults.synchronize();
}

CommandLine::Operations Composition::commandOperations() {
  return {[this] { m_root.toggle(); },
          [this] { m_root.show(); },
          [this] { m_root.showSettings(); },
          [this] { m_root.showAbout(); },
          [this](const std::vector<std::string>& urls) { m_root.openURLs(urls); },
          [this] { m_root.quitApp(); },
          pasteboardType};
}

void Composition::listenToCommands() {
  static_assert(platform::CommandSocket::requestLimit >= commandmessage::requestLimit);
  m_commandSocket = platform::CommandSocket::listen(
      m_folders.runtime / "socket", m_runLoop,
      [this](const auto& line, const auto& reply) { m_commandLine.answer(line, reply); });
}

void Composition::tellServices() const {
  foundation::printLine(
      "Quillmonger is ready: clipboard by X11 (XFixes), global chord by X11 key grabs, paste keys by X11 (XTest), "
      "status item by StatusNotifierItem, sounds by PulseAudio");
}

}  // namespace quillmonger
