#include "tests/gallery/GuideStage.h"

#include <QCoreApplication>
#include <QSurfaceFormat>
#include <string>
#include <vector>

#include "Quillmonger/guide/view/QmlModule.h"
#include "Quillmonger/resources/QmlModule.h"
#include "tests/gallery/ViewStage.h"

namespace testsupport {

GuideStage::GuideStage(const QString& chord)
    : m_alert(quillmonger::Alert::firstButton),
      m_permissions(
          m_access, m_alert, [](std::string_view key) { return std::string(key); }, [](const foundation::Url&) {},
          m_runLoop),
      m_guide({[this] { ++m_quitCount; }, [this] { ++m_finishCount; }}),
      m_accessibility(m_permissions, m_runLoop),
      m_appearance(m_defaults.defaults),
      m_model({m_guide, m_accessibility, m_videos.factory()}) {
  m_model.setChord(chord);
  m_appearance.follow(m_desktop, [this] { return m_desktop.reducesMotion().value(); });
  quillmonger::resourcesview::registerTypes(m_engine);
  quillmonger::guideview::registerTypes();
}

GuideStage::~GuideStage() = default;

void GuideStage::goTo(quillmonger::LaunchScreen wanted) {
  while (screen() != wanted)
    m_guide.showNext();
}

QQuickView& GuideStage::view() {
  if (!m_view) {
    m_view = std::make_unique<QQuickView>(&m_engine, nullptr);
    QSurfaceFormat format = m_view->format();
    format.setAlphaBufferSize(8);
    m_view->setFormat(format);
    m_view->setColor(Qt::transparent);
    m_view->setResizeMode(QQuickView::SizeRootObjectToView);
    m_view->resize(550, 640);
    m_view->setInitialProperties(
        {{"model", QVariant::fromValue(&m_model)}, {"appearance", QVariant::fromValue(&m_appearance)}});
    m_view->setSource(QUrl(QStringLiteral("qrc:/qt-project.org/imports/Quillmonger/Guide/GettingStartedView.qml")));
    m_view->show();
  }
  // Lays out and lets deferred steps and animations' first frames pass.
  m_view->grabWindow();
  QCoreApplication::processEvents();
  return *m_view;
}

QQuickItem* GuideStage::find(const QString& identifier) {
  std::vector<QQuickItem*> found;
  collect(view().rootObject(), identifier, found);
  return found.empty() ? nullptr : found.front();
}

}  // namespace testsupport
