#include "Quillmonger/shell/app/Views.h"

#include <malloc.h>

#include <QCoreApplication>
#include <QQuickView>
#include <utility>

#include "KeyboardShortcuts/view/QmlModule.h"
#include "Quillmonger/capture/PasteboardTypes.h"
#include "Quillmonger/guide/view/QmlModule.h"
#include "Quillmonger/history/view/QmlModule.h"
#include "Quillmonger/input/ShortcutNames.h"
#include "Quillmonger/preview/view/QmlModule.h"
#include "Quillmonger/resources/EmojiFont.h"
#include "Quillmonger/resources/QmlModule.h"
#include "Quillmonger/resources/Texts.h"
#include "Quillmonger/search/view/QmlModule.h"
#include "Quillmonger/settings/view/QmlModule.h"
#include "Quillmonger/shell/app/OutsidePages.h"
#include "Quillmonger/update/view/QmlModule.h"
#include "Settings/view/QmlModule.h"

namespace quillmonger {

namespace {

constexpr QSize appWindowSize(600, 445);
constexpr QSize previewWindowSize(600, 445);
constexpr QSize aboutWindowSize(540, 280);
constexpr QSize gettingStartedWindowSize(550, 640);

// The beginning of the text that the clipboard holds, as far as it has been read.
std::string presentText(const Pasteboard& pasteboard) {
  constexpr std::size_t enough = 4096;
  const auto content = pasteboard.pasteboardItems();
  if (!content) return {};
  const auto text = content->payload().find(pasteboardtype::NSPasteboardTypeString);
  return text != content->payload().end() && text->second ? text->second->part(0, enough) : std::string();
}

}  // namespace

Views::Views(defaults::Defaults& defaults, WindowSystem& windowSystem, ImageCache::IconNaming iconNaming,
             const AppPickerViewModel::Collaborators& applications, foundation::NotificationCenter& notificationCenter,
             const UrlOpener& openUrl)
    : m_defaults(defaults),
      m_backgroundQueue(applications.backgroundQueue),
      m_runLoop(applications.runLoop),
      m_notificationCenter(notificationCenter),
      m_iconNaming(std::move(iconNaming)),
      m_appearance(defaults),
      m_inspection(applications.backgroundQueue, applications.runLoop),
      m_historySettings(defaults),
      m_aboutModel(QCoreApplication::applicationVersion(),
                   [openUrl](AboutModel::Page page) { openUrl(outsidePage(page)); }),
      m_updateModel(QCoreApplication::applicationVersion().toStdString()),
      m_alert([this]() -> QQmlEngine& { return engine(); }, m_appearance),
      m_appWindow({platform::QtQuickWindow::Kind::palette, appWindowSize, QStringLiteral("Quillmonger"),
                   [this] { return appContent(); }, [this]() -> QQmlEngine& { return engine(); }},
                  windowSystem),
      m_gettingStartedWindow({platform::QtQuickWindow::Kind::plain, gettingStartedWindowSize,
                              QString::fromStdString(localizedText("welcome_message")),
                              [this] { return gettingStartedContent(); }, [this]() -> QQmlEngine& { return engine(); }},
                             windowSystem),
      m_settings({defaults, windowSystem, m_appearance, [this]() -> QQmlEngine& { return engine(); },
                  applications.runLoop, notificationCenter}),
      m_aboutWindow(
          {platform::QtQuickWindow::Kind::dialog, aboutWindowSize, QString::fromStdString(localizedText("about_title")),
           [this] { return aboutContent(); }, [this]() -> QQmlEngine& { return engine(); }},
          windowSystem),
      m_updateWindow(
          {platform::QtQuickWindow::Kind::dialog, QSize(), QString::fromStdString(localizedText("update_window_title")),
           [this] { return updateContent(); }, [this]() -> QQmlEngine& { return engine(); }},
          windowSystem),
      m_previewPanel(
          {platform::QtQuickWindow::Kind::companion, previewWindowSize, QStringLiteral("Quillmonger Preview"),
           [this] { return previewContent(); }, [this]() -> QQmlEngine& { return engine(); }},
          windowSystem),
      m_appPicker({applications, m_appearance, [this]() -> QQmlEngine& { return engine(); },
                   [this]() -> QWindow* { return m_settings.view(); }, [this] { return m_clipboardText(); }}) {}

void Views::feed(Quillmonger& root, const Pasteboard& pasteboard, LocalEventMonitoring& eventMonitoring,
                 const PanedSettings::Services& services) {
  ClipboardViewModel& history = root.clipboardViewModel();
  m_clipboardText = [&pasteboard] { return presentText(pasteboard); };
  m_settings.feed(root, services);
  m_clipboardViewAdapter = std::make_unique<ClipboardViewAdapter>(
      ClipboardViewAdapter::History{history.filteredItems(), history.selectedItem(), history.isOptionPressed(),
                                    [&history] { return history.items().empty(); },
                                    [&history](const auto& item) { history.select(item); }, m_inspection});
  m_previewFeed =
      std::make_unique<PreviewFeed>(root, PreviewFeed::Services{m_notificationCenter, m_defaults, m_backgroundQueue,
                                                                m_runLoop, eventMonitoring, m_inspection, m_alert});
  m_searchBarModel = std::make_unique<SearchBarModel>(
      root.searchViewModel().searchTerm(), m_defaults, m_clipboardText,
      SearchBarModel::Preview{[&root] { root.windowManager().togglePreviewWindow(); },
                              [this] { return m_previewFeed->model()->copySelection(); },
                              [this] { m_previewFeed->model()->selectAll(); },
                              [this](int pages) { m_previewFeed->model()->scrollRequested(pages); }});
  m_activateChord = std::make_unique<keyboardshortcuts::ShortcutText>(shortcutname::activate(), services.shortcuts,
                                                                      services.inputSources, m_notificationCenter);
  m_guideFeed = std::make_unique<GuideFeed>(root, m_runLoop, [this] { endGuide(); });
  m_activateChordSubscription = m_activateChord->value().follow(
      [this](const auto& chord) { m_guideFeed->model()->setChord(QString::fromStdString(chord)); });
}

// Its last button is still at work.
void Views::endGuide() {
  m_runLoop.post([this] {
    m_gettingStartedWindow.unload();
    // What its pictures took is free, but lies among what stays: the system gets it back on demand alone.
    malloc_trim(0);
  });
}

void Views::close() {
  m_appPicker.close();
  m_settings.close();
  m_aboutWindow.unload();
  m_updateWindow.unload();
  m_previewPanel.unload();
  m_appWindow.unload();
  m_gettingStartedWindow.unload();
  m_activateChordSubscription.cancel();
  m_activateChord.reset();
  m_guideFeed.reset();
  m_previewFeed.reset();
  m_clipboardViewAdapter.reset();
  m_searchBarModel.reset();
  m_clipboardText = nullptr;
}

QQmlEngine& Views::engine() {
  if (!m_engine) {
    preferColourEmoji();
    m_engine = std::make_unique<QQmlEngine>();
    resourcesview::registerTypes(*m_engine);
    searchview::registerTypes();
    historyview::registerTypes();
    previewview::registerTypes();
    guideview::registerTypes();
    settings::registerTypes();
    keyboardshortcuts::view::registerTypes();
    settingsview::registerTypes();
    updateview::registerTypes();
    m_engine->addImageProvider(QStringLiteral("appicon"), new ImageCache(m_iconNaming));
  }
  return *m_engine;
}

Views::Content Views::appContent() {
  return {QUrl(QStringLiteral("qrc:/qt-project.org/imports/Quillmonger/History/AppView.qml")),
          {{"clipboard", QVariant::fromValue(m_clipboardViewAdapter.get())},
           {"search", QVariant::fromValue(m_searchBarModel.get())},
           {"settings", QVariant::fromValue(&m_historySettings)},
           {"appearance", QVariant::fromValue(&m_appearance)}}};
}

Views::Content Views::gettingStartedContent() {
  return {QUrl(QStringLiteral("qrc:/qt-project.org/imports/Quillmonger/Guide/GettingStartedView.qml")),
          {{"model", QVariant::fromValue(m_guideFeed->model())}, {"appearance", QVariant::fromValue(&m_appearance)}}};
}

Views::Content Views::aboutContent() {
  return {QUrl(QStringLiteral("qrc:/qt-project.org/imports/Quillmonger/Settings/AboutView.qml")),
          {{"model", QVariant::fromValue(&m_aboutModel)}, {"appearance", QVariant::fromValue(&m_appearance)}}};
}

Views::Content Views::updateContent() {
  return {QUrl(QStringLiteral("qrc:/qt-project.org/imports/Quillmonger/Update/UpdateView.qml")),
          {{"model", QVariant::fromValue(&m_updateModel)}, {"appearance", QVariant::fromValue(&m_appearance)}}};
}

Views::Content Views::previewContent() {
  return {
      QUrl(QStringLiteral("qrc:/qt-project.org/imports/Quillmonger/Preview/PreviewView.qml")),
      {{"preview", QVariant::fromValue(m_previewFeed->model())}, {"appearance", QVariant::fromValue(&m_appearance)}}};
}

}  // namespace quillmonger
