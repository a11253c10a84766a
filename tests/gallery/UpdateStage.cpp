#include "tests/gallery/UpdateStage.h"

#include <QCoreApplication>
#include <QQuickItem>

#include "Quillmonger/resources/QmlModule.h"
#include "Quillmonger/update/view/QmlModule.h"

namespace testsupport {

UpdateStage::UpdateStage() : m_appearance(m_defaults.defaults) {
  quillmonger::resourcesview::registerTypes(m_engine);
  quillmonger::updateview::registerTypes();
  m_model.answered = [this](Answer answer) { m_answers.push_back(answer); };
}

UpdateStage::~UpdateStage() = default;

QQuickView& UpdateStage::show(const quillmonger::UpdateStatus& status) {
  m_model.setStatus(status);
  if (!m_view) {
    m_view = std::make_unique<QQuickView>(&m_engine, nullptr);
    m_view->setInitialProperties(
        {{"model", QVariant::fromValue(&m_model)}, {"appearance", QVariant::fromValue(&m_appearance)}});
    m_view->setSource(QUrl(QStringLiteral("qrc:/qt-project.org/imports/Quillmonger/Update/UpdateView.qml")));
    m_view->show();
  }
  m_view->grabWindow();
  QCoreApplication::processEvents();
  return *m_view;
}

}  // namespace testsupport
