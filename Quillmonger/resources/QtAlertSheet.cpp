#include "Quillmonger/resources/QtAlertSheet.h"

#include <utility>

#include "Quillmonger/resources/AlertWindow.h"

namespace quillmonger {

QtAlertSheet::QtAlertSheet(Surroundings surroundings) : m_surroundings(std::move(surroundings)) {}

QtAlertSheet::~QtAlertSheet() = default;

void QtAlertSheet::begin(Content content, Completion completion) {
  if (m_completion) {
    m_window->requestActivate();
    m_surroundings.runLoop.post(
        [completion = std::move(completion), button = cancelButton(content)] { completion(button); });
    return;
  }
  m_completion = std::move(completion);
  show(content);
}

void QtAlertSheet::close() {
  m_completion = nullptr;
  m_window.reset();
}

void QtAlertSheet::show(const Content& content) {
  m_window = std::make_unique<AlertWindow>(m_surroundings.engine(), m_surroundings.appearance, content,
                                           [this](std::size_t button) { end(button); });
  QWindow* parent = m_surroundings.parent();
  m_window->setFlags(Qt::Dialog);
  m_window->setModality(parent == nullptr ? Qt::ApplicationModal : Qt::WindowModal);
  m_window->setTransientParent(parent);
  const auto cancelWhenHidden = [this, cancel = cancelButton(content)](bool isVisible) {
    if (!isVisible) end(cancel);
  };
  if (parent != nullptr) QObject::connect(parent, &QWindow::visibleChanged, m_window.get(), cancelWhenHidden);
  m_window->show();
  m_window->requestActivate();
}

// In a later turn, since one of the window's own items is what answered.
void QtAlertSheet::end(std::size_t button) {
  if (!m_completion || !m_window->isVisible()) return;
  m_window->hide();
  m_surroundings.runLoop.post([this, isAlive = std::weak_ptr(m_isAlive), button] {
    if (isAlive.expired() || !m_completion) return;
    m_window.reset();
    const Completion completion = std::exchange(m_completion, nullptr);
    completion(button);
  });
}

}  // namespace quillmonger
