#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>
#include <functional>
#include <string>

#include "Defaults/Defaults.h"
#include "Foundation/Published.h"

namespace quillmonger {

/// What the search bar shows and edits. Main thread.
class SearchBarModel final : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("made by the program")
  Q_PROPERTY(QString searchTerm READ searchTerm WRITE setSearchTerm NOTIFY searchTermChanged)
  Q_PROPERTY(bool isIncognitoMode READ isIncognitoMode NOTIFY isIncognitoModeChanged)
  Q_PROPERTY(bool canTogglePreview READ canTogglePreview CONSTANT)

 public:
  /// Both outlive this object. `clipboardText` gives what a paste into the field pastes, and waits for nobody. Without
  /// `togglePreview` there is no button for it.
  SearchBarModel(foundation::Published<std::string>& searchTerm, defaults::Defaults& defaults,
                 std::function<std::string()> clipboardText, std::function<void()> togglePreview);

  [[nodiscard]] QString searchTerm() const;
  void setSearchTerm(const QString& term);
  [[nodiscard]] bool isIncognitoMode() const { return m_isIncognitoMode; }
  [[nodiscard]] bool canTogglePreview() const { return static_cast<bool>(m_togglePreview); }

  /// The clipboard's text on one line, cut to what anybody would search for.
  Q_INVOKABLE [[nodiscard]] QString clipboardText() const;
  Q_INVOKABLE void togglePreview() { m_togglePreview(); }

 signals:
  void searchTermChanged();
  void isIncognitoModeChanged();

 private:
  foundation::Published<std::string>& m_searchTerm;
  std::function<std::string()> m_clipboardText;
  std::function<void()> m_togglePreview;
  bool m_isIncognitoMode = false;
  foundation::Subscription m_termSubscription;
  foundation::Subscription m_incognitoSubscription;
};

}  // namespace quillmonger
