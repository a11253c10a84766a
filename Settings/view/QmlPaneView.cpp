#include "Settings/view/QmlPaneView.h"

#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickWindow>
#include <utility>

#include "Foundation/Fatal.h"

namespace settings {

namespace {

// Columns know their size only when they have been laid out, which would otherwise be with the next frame.
void layOut(QQuickItem& item) {
  for (QQuickItem* child : item.childItems())
    layOut(*child);
  if (item.inherits("QQuickBasePositioner")) item.ensurePolished();
}

}  // namespace

QmlPaneView::QmlPaneView(Parent parent, QUrl source, Properties properties)
    : m_parent(std::move(parent)), m_source(std::move(source)), m_properties(std::move(properties)) {}

Size QmlPaneView::fittingSize() {
  layOut(item());
  return {item().implicitWidth(), item().implicitHeight()};
}

void QmlPaneView::setAlpha(double alpha) {
  item().setOpacity(alpha);
  item().setVisible(alpha > 0);
  // What has gone gives the keyboard back.
  item().setEnabled(alpha > 0);
}

QQuickItem& QmlPaneView::item() {
  if (m_item) return *m_item;
  QQuickItem& parent = m_parent();
  QQmlEngine* engine = qmlEngine(&parent);
  QQmlComponent component(engine, m_source);
  auto* context = new QQmlContext(engine->rootContext());
  m_item = qobject_cast<QQuickItem*>(component.createWithInitialProperties(m_properties(), context));
  if (!m_item) foundation::stopProcess("A settings pane could not be loaded: " + component.errorString().toStdString());
  QQmlEngine::setObjectOwnership(m_item, QQmlEngine::CppOwnership);
  m_item->setParent(&parent);
  context->setParent(m_item);
  // The window's tree goes: what is bound to parts of it must not be looked at again while they go one by one.
  QObject::connect(&parent, &QQuickItem::windowChanged, m_item,
                   [context = QPointer(context)](const QQuickWindow* window) {
                     if (window == nullptr) delete context.data();
                   });
  m_item->setVisible(false);
  m_item->setEnabled(false);
  m_item->setParentItem(&parent);
  const auto tell = [this] {
    if (m_changed) m_changed();
  };
  QObject::connect(m_item, &QQuickItem::implicitWidthChanged, m_item, tell);
  QObject::connect(m_item, &QQuickItem::implicitHeightChanged, m_item, tell);
  return *m_item;
}

}  // namespace settings
