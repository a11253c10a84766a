#include "tests/gallery/PreviewStage.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QLinearGradient>
#include <QPainter>
#include <algorithm>

#include "Quillmonger/history/view/ImageCache.h"
#include "Quillmonger/history/view/QmlModule.h"
#include "Quillmonger/preview/view/QmlModule.h"
#include "Quillmonger/resources/QmlModule.h"
#include "Quillmonger/resources/Texts.h"
#include "tests/gallery/TileIcon.h"
#include "tests/gallery/ViewStage.h"
#include "tests/support/Records.h"

namespace testsupport {

PreviewStage::PreviewStage()
    : m_appearance(m_itemServices.settings.defaults),
      m_viewModel({m_selectedItem, m_isWindowVisible, m_itemServices.settings.defaults, m_itemServices.oculetManager,
                   quillmonger::localizedText, m_queue, m_runLoop}),
      m_copying({[this](const foundation::Data& text) { m_copies.push_back(*text.bytes()); },
                 [this] { ++m_alertCount; }, m_queue, m_runLoop}),
      m_buttons({m_viewModel, m_copying, m_keyboard, m_runLoop}),
      m_model({m_viewModel, m_copying, m_buttons, m_isOptionPressed, m_itemServices.settings.defaults, m_queue,
               m_runLoop, [this] { ++m_settingsCount; }}) {
  quillmonger::resourcesview::registerTypes(m_engine);
  quillmonger::historyview::registerTypes();
  quillmonger::previewview::registerTypes();
  m_engine.addImageProvider(QStringLiteral("appicon"),
                            new quillmonger::ImageCache([](const std::string& path) { return path + ".svg"; }));
}

PreviewStage::~PreviewStage() = default;

std::optional<foundation::Url> PreviewStage::application(const std::string& name) {
  if (name.empty()) return std::nullopt;
  const std::string path = (m_folder.path() / (name + ".desktop")).string();
  const auto url = foundation::Url::fromFilePath(path);
  m_itemServices.naming.setDisplayName(url, name);
  drawTileIcon(path + ".svg", name);
  return url;
}

PreviewStage::Item PreviewStage::makeItem(std::string bytes, std::string_view type, const std::string& appName) {
  return std::make_shared<quillmonger::ClipboardItemViewModel>(
      makeRecord(std::move(bytes), std::chrono::hours(-3), type, {std::nullopt, application(appName)}),
      m_itemServices.services);
}

PreviewStage::Item PreviewStage::makePicture(int width, int height, const std::string& appName) {
  QImage image(width, height, QImage::Format_RGB32);
  QPainter painter(&image);
  QLinearGradient sky(0, 0, width, height);
  sky.setColorAt(0, QColor(0x2b, 0x59, 0x87));
  sky.setColorAt(1, QColor(0xf3, 0xb2, 0x6b));
  painter.fillRect(image.rect(), sky);
  painter.setBrush(QColor(0xff, 0xf1, 0xc9));
  painter.drawEllipse(QRectF(width * 0.6, height * 0.2, height * 0.2, height * 0.2));
  painter.end();
  QByteArray bytes;
  QBuffer buffer(&bytes);
  image.save(&buffer, "PNG");
  pictures().setPicture(bytes.toStdString(), {static_cast<double>(width), static_cast<double>(height)});
  return makeItem(bytes.toStdString(), "public.png", appName);
}

void PreviewStage::load() {
  // What is loaded can ask for more.
  for (int round = 0; round < 3; ++round) {
    m_queue.run();
    m_runLoop.runPosted();
  }
}

QQuickView& PreviewStage::view() {
  if (!m_view) {
    m_view = std::make_unique<QQuickView>(&m_engine, nullptr);
    m_view->setResizeMode(QQuickView::SizeRootObjectToView);
    m_view->resize(600, 445);
    m_view->setInitialProperties(
        {{"preview", QVariant::fromValue(&m_model)}, {"appearance", QVariant::fromValue(&m_appearance)}});
    m_view->setSource(QUrl(QStringLiteral("qrc:/qt-project.org/imports/Quillmonger/Preview/PreviewView.qml")));
    m_view->show();
  }
  m_view->grabWindow();
  QCoreApplication::processEvents();
  return *m_view;
}

std::vector<QQuickItem*> PreviewStage::findAll(const QString& identifier) {
  std::vector<QQuickItem*> found;
  if (QQuickItem* root = view().rootObject()) collect(root, identifier, found);
  std::ranges::stable_sort(found, {}, [](QQuickItem* item) { return item->mapToScene(QPointF()).y(); });
  return found;
}

QQuickItem* PreviewStage::find(const QString& identifier) {
  const auto found = findAll(identifier);
  return found.empty() ? nullptr : found.front();
}

}  // namespace testsupport
