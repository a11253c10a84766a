#pragma once

#include <QQuickView>
#include <functional>

#include "Foundation/AlertSheet.h"

class QQmlEngine;

namespace quillmonger {

class Appearance;

/// A window with a question. It tells each answer, which is also how it goes: whoever made it takes it away then.
class AlertWindow final : public QQuickView {
  Q_OBJECT

 public:
  /// `engine` knows "Quillmonger.Resources". Both outlive this object.
  AlertWindow(QQmlEngine& engine, Appearance& appearance, const foundation::AlertSheet::Content& content,
              foundation::AlertSheet::Completion completion);

 private slots:
  void answer(int button);

 private:
  bool event(QEvent* event) override;

  int m_cancelButton;
  foundation::AlertSheet::Completion m_completion;
};

}  // namespace quillmonger
