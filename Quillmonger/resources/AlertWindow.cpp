#include "Quillmonger/resources/AlertWindow.h"

#include <QEvent>
#include <QQuickItem>
#include <utility>

#include "Foundation/Fatal.h"
#include "Quillmonger/resources/Appearance.h"

namespace quillmonger {

namespace {

using Button = foundation::AlertSheet::Button;

QString roleName(Button::Role role) {
  switch (role) {
    case Button::Role::destructive:
      return QStringLiteral("destructive");
    case Button::Role::cancel:
      return QStringLiteral("cancel");
    case Button::Role::standard:
      break;
  }
  return QStringLiteral("standard");
}

QVariantList listed(const std::vector<Button>& buttons) {
  QVariantList list;
  for (const Button& button : buttons)
    list.append(QVariantMap{{"title", QString::fromStdString(button.title)}, {"role", roleName(button.role)}});
  return list;
}

}  // namespace

AlertWindow::AlertWindow(QQmlEngine& engine, Appearance& appearance, const foundation::AlertSheet::Content& content,
                         foundation::AlertSheet::Completion completion)
    : QQuickView(&engine, nullptr),
      m_cancelButton(static_cast<int>(foundation::cancelButton(content))),
      m_completion(std::move(completion)) {
  setTitle(QString::fromStdString(content.message));
  setInitialProperties({{"message", QString::fromStdString(content.message)},
                        {"informativeText", QString::fromStdString(content.informativeText)},
                        {"buttons", listed(content.buttons)},
                        {"cancelIndex", m_cancelButton},
                        {"appearance", QVariant::fromValue(&appearance)}});
  setSource(QUrl(QStringLiteral("qrc:/qt-project.org/imports/Quillmonger/Resources/Alert.qml")));
  if (rootObject() == nullptr) foundation::stopProcess("A window's content could not be loaded.");
  connect(rootObject(), SIGNAL(answered(int)), this, SLOT(answer(int)));
  setMinimumSize(size());
  setMaximumSize(size());
}

void AlertWindow::answer(int button) { m_completion(static_cast<std::size_t>(button)); }

bool AlertWindow::event(QEvent* event) {
  if (event->type() == QEvent::Close) answer(m_cancelButton);
  return QQuickView::event(event);
}

}  // namespace quillmonger
