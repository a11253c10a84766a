#include "KeyboardShortcuts/view/RecorderField.h"

#include <QFocusEvent>
#include <QQuickWindow>
#include <utility>

namespace keyboardshortcuts {

RecorderField::RecorderField() = default;

RecorderField::~RecorderField() = default;

void RecorderField::componentComplete() {
  QQuickItem::componentComplete();
  m_recorder = m_recorders->make(m_name, *this);
  const auto forward = [this](auto& published, auto signal) {
    m_observations.push_back(published.follow([this, signal](const auto&) { (this->*signal)(); }));
  };
  forward(m_recorder->stringValue(), &RecorderField::textChanged);
  forward(m_recorder->placeholderString(), &RecorderField::placeholderChanged);
  forward(m_recorder->showsCancelButton(), &RecorderField::showsClearButtonChanged);
  forward(m_recorder->isRecording(), &RecorderField::isRecordingChanged);
  forward(m_recorder->canBecomeKey(), &RecorderField::canBecomeKeyChanged);
  if (window() != nullptr) moveTo(*window());
}

void RecorderField::itemChange(ItemChange change, const ItemChangeData& data) {
  if (m_recorder && change == ItemSceneChange && data.window != nullptr) moveTo(*data.window);
  QQuickItem::itemChange(change, data);
}

void RecorderField::moveTo(QQuickWindow& place) {
  m_recorder->viewDidMoveToWindow();
  QObject::disconnect(m_activation);
  QObject::disconnect(m_visibility);
  m_activation = QObject::connect(&place, &QWindow::activeChanged, this, [this] {
    if (window() != nullptr && window()->isActive() && std::exchange(m_awaitsFocus, false)) takeFocus();
  });
  m_visibility = QObject::connect(&place, &QWindow::visibleChanged, this, [this](bool isVisible) {
    if (!isVisible) m_awaitsFocus = false;
  });
}

QString RecorderField::text() const {
  return m_recorder ? QString::fromStdString(m_recorder->stringValue().value()) : QString();
}

QString RecorderField::placeholder() const {
  return m_recorder ? QString::fromStdString(m_recorder->placeholderString().value()) : QString();
}

bool RecorderField::showsClearButton() const { return m_recorder && m_recorder->showsCancelButton().value(); }

bool RecorderField::isRecording() const { return m_recorder && m_recorder->isRecording().value(); }

bool RecorderField::canBecomeKey() const { return m_recorder && m_recorder->canBecomeKey().value(); }

void RecorderField::clear() { m_recorder->performClick(); }

// A window that comes to the front gives the focus to whoever had it. That is no wish to record.
void RecorderField::focusInEvent(QFocusEvent* event) {
  QQuickItem::focusInEvent(event);
  const auto reason = event->reason();
  if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason) m_recorder->becomeFirstResponder();
}

void RecorderField::focusOutEvent(QFocusEvent* event) {
  QQuickItem::focusOutEvent(event);
  m_recorder->controlTextDidEndEditing();
}

RecorderView::Bounds RecorderField::bounds() const {
  const QRectF place = mapRectToScene(boundingRect());
  return {place.x(), place.y(), place.width(), place.height()};
}

void RecorderField::takeFocus() {
  if (window() == nullptr || !window()->isVisible()) return;
  if (!window()->isActive()) {
    m_awaitsFocus = true;
    window()->requestActivate();
  } else if (hasActiveFocus()) {
    m_recorder->becomeFirstResponder();
  } else {
    forceActiveFocus(Qt::OtherFocusReason);
  }
}

void RecorderField::resignFocus() { m_recorder->controlTextDidEndEditing(); }

}  // namespace keyboardshortcuts
