#include "Quillmonger/shell/view/QtAlert.h"

#include <QEventLoop>
#include <utility>

#include "Quillmonger/resources/AlertWindow.h"

namespace quillmonger {

namespace {

using Role = foundation::AlertSheet::Button::Role;

foundation::AlertSheet::Content withRoles(const Alert::Content& content) {
  foundation::AlertSheet::Content roles{content.message, content.informativeText, {}};
  for (const std::string& title : content.buttons)
    roles.buttons.push_back({title, roles.buttons.empty() ? Role::standard : Role::cancel});
  return roles;
}

}  // namespace

QtAlert::QtAlert(std::function<QQmlEngine&()> engine, Appearance& appearance)
    : m_engine(std::move(engine)), m_appearance(appearance) {}

int QtAlert::runModal(const Content& content) {
  QEventLoop loop;
  AlertWindow window(m_engine(), m_appearance, withRoles(content),
                     [&loop](std::size_t button) { loop.exit(firstButton + static_cast<int>(button)); });
  window.setFlags(Qt::Dialog | Qt::WindowStaysOnTopHint);
  window.setModality(Qt::ApplicationModal);
  window.show();
  window.requestActivate();
  return loop.exec();
}

}  // namespace quillmonger
