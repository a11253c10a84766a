#pragma once

#include <QtQml/qqmlregistration.h>
#include <QQuickItem>
#include <QString>
#include <memory>
#include <vector>

#include "KeyboardShortcuts/RecorderCocoa.h"
#include "KeyboardShortcuts/view/Recorders.h"

namespace keyboardshortcuts {

/// The place of a recorder in a view, without a look of its own. It records from when it gets the focus by a key or the
/// mouse, or is asked to. When the recorder has given the focus up, the item keeps the toolkit's, so that Tab goes on
/// from here. Main thread.
class RecorderField : public QQuickItem, private RecorderView {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(keyboardshortcuts::Recorders* recorders MEMBER m_recorders REQUIRED)
  Q_PROPERTY(QString name MEMBER m_name REQUIRED)
  /// The chord; empty without one.
  Q_PROPERTY(QString text READ text NOTIFY textChanged)
  Q_PROPERTY(QString placeholder READ placeholder NOTIFY placeholderChanged)
  Q_PROPERTY(bool showsClearButton READ showsClearButton NOTIFY showsClearButtonChanged)
  Q_PROPERTY(bool isRecording READ isRecording NOTIFY isRecordingChanged)
  Q_PROPERTY(bool canBecomeKey READ canBecomeKey NOTIFY canBecomeKeyChanged)
  Q_PROPERTY(double minimumWidth READ minimumWidth CONSTANT)

 public:
  RecorderField();
  ~RecorderField() override;

  [[nodiscard]] QString text() const;
  [[nodiscard]] QString placeholder() const;
  [[nodiscard]] bool showsClearButton() const;
  [[nodiscard]] bool isRecording() const;
  [[nodiscard]] bool canBecomeKey() const;
  [[nodiscard]] static double minimumWidth() { return RecorderCocoa::minimumWidth; }

  Q_INVOKABLE void record() { takeFocus(); }
  Q_INVOKABLE void clear();

 signals:
  void textChanged();
  void placeholderChanged();
  void showsClearButtonChanged();
  void isRecordingChanged();
  void canBecomeKeyChanged();

 private:
  void componentComplete() override;
  void itemChange(ItemChange change, const ItemChangeData& data) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

  void moveTo(QQuickWindow& place);
  [[nodiscard]] Bounds bounds() const override;
  void takeFocus() override;
  void resignFocus() override;

  Recorders* m_recorders = nullptr;
  QString m_name;
  /// The recorder's wish, until the window has the keyboard again or is hidden.
  bool m_awaitsFocus = false;
  QMetaObject::Connection m_activation;
  QMetaObject::Connection m_visibility;
  std::unique_ptr<RecorderCocoa> m_recorder;
  std::vector<foundation::Subscription> m_observations;
};

}  // namespace keyboardshortcuts
