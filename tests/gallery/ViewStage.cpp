#include "tests/gallery/ViewStage.h"

#include <QCoreApplication>
#include <QSurfaceFormat>
#include <algorithm>

#include "Quillmonger/history/view/ImageCache.h"
#include "Quillmonger/history/view/QmlModule.h"
#include "Quillmonger/resources/QmlModule.h"
#include "Quillmonger/search/view/QmlModule.h"
#include "tests/gallery/TileIcon.h"
#include "tests/support/Records.h"

namespace testsupport {

using quillmonger::ClipboardItemViewModel;

void collect(QQuickItem* item, const QString& identifier, std::vector<QQuickItem*>& found) {
  if (!item->isVisible()) return;
  if (item->objectName() == identifier) found.push_back(item);
  for (QQuickItem* child : item->childItems())
    collect(child, identifier, found);
}

ViewStage::ViewStage() : m_appearance(m_itemServices.settings.defaults), m_settings(m_itemServices.settings.defaults) {
  quillmonger::resourcesview::registerTypes(m_engine);
  quillmonger::searchview::registerTypes();
  quillmonger::historyview::registerTypes();
  m_engine.addImageProvider(QStringLiteral("appicon"),
                            new quillmonger::ImageCache([](const std::string& path) { return path + ".svg"; }));
  m_adapter = std::make_unique<quillmonger::ClipboardViewAdapter>(quillmonger::ClipboardViewAdapter::History{
      m_rows, m_selectedItem, m_isOptionPressed, [this] { return m_shownItems.empty(); },
      [this](const Item& item) { m_selectedItem.set(item); }, m_inspection});
  m_searchBar = std::make_unique<quillmonger::SearchBarModel>(
      m_searchTerm, m_itemServices.settings.defaults, [this] { return m_clipboardText; },
      quillmonger::SearchBarModel::Preview{
          [this] { m_previewCommands.emplace_back("toggle"); },
          [this] {
            m_previewCommands.emplace_back("copy");
            return m_hasPreviewSelection;
          },
          [this] { m_previewCommands.emplace_back("select all"); },
          [this](int pages) { m_previewCommands.push_back("scroll " + std::to_string(pages)); }});
}

ViewStage::~ViewStage() = default;

std::optional<foundation::Url> ViewStage::application(const std::string& name) {
  if (name.empty()) return std::nullopt;
  const std::string path = (m_folder.path() / (name + ".desktop")).string();
  const auto url = foundation::Url::fromFilePath(path);
  m_itemServices.naming.setDisplayName(url, name);
  drawTileIcon(path + ".svg", name);
  return url;
}

ViewStage::Item ViewStage::makeItem(std::string bytes, std::string_view type, const std::string& appName) {
  return std::make_shared<ClipboardItemViewModel>(
      makeRecord(std::move(bytes), {}, type, {std::nullopt, application(appName)}), m_itemServices.services);
}

void ViewStage::show(const std::vector<Item>& items) {
  m_shownItems = items;
  std::vector<Row> rows;
  for (const Item& item : items)
    rows.push_back({item.get(), 0.0, std::nullopt});
  showRows(std::move(rows));
}

void ViewStage::showRows(std::vector<Row> rows) {
  m_rows.set(std::make_shared<const quillmonger::SearchResultList<ClipboardItemViewModel>>(
      std::move(rows), quillmonger::SearchItems(m_shownItems)));
  m_selectedItem.set(m_rows.value()->empty() ? nullptr : m_rows.value()->front().item->shared_from_this());
}

void ViewStage::select(std::size_t row) { m_selectedItem.set(m_rows.value()->at(row).item->shared_from_this()); }

void ViewStage::finishWork() {
  m_queue.run();
  m_runLoop.runPosted();
}

QQuickView& ViewStage::view() {
  if (!m_view) {
    m_view = std::make_unique<QQuickView>(&m_engine, nullptr);
    QSurfaceFormat format = m_view->format();
    format.setAlphaBufferSize(8);
    m_view->setFormat(format);
    m_view->setColor(Qt::transparent);
    m_view->setResizeMode(QQuickView::SizeRootObjectToView);
    m_view->resize(600, 445);
    m_view->setInitialProperties({{"clipboard", QVariant::fromValue(m_adapter.get())},
                                  {"search", QVariant::fromValue(m_searchBar.get())},
                                  {"settings", QVariant::fromValue(&m_settings)},
                                  {"appearance", QVariant::fromValue(&m_appearance)}});
    m_view->setSource(QUrl(QStringLiteral("qrc:/qt-project.org/imports/Quillmonger/History/AppView.qml")));
    m_view->show();
  }
  // Lays out and lets deferred steps and animations' first frames pass.
  m_view->grabWindow();
  QCoreApplication::processEvents();
  return *m_view;
}

std::vector<QQuickItem*> ViewStage::findAll(const QString& identifier) {
  std::vector<QQuickItem*> found;
  if (QQuickItem* root = view().rootObject()) collect(root, identifier, found);
  std::ranges::stable_sort(found, {}, [](QQuickItem* item) { return item->mapToScene(QPointF()).y(); });
  return found;
}

QQuickItem* ViewStage::find(const QString& identifier) {
  const auto found = findAll(identifier);
  return found.empty() ? nullptr : found.front();
}

QImage ViewStage::picture() { return view().grabWindow(); }

}  // namespace testsupport
