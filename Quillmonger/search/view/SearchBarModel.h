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

 public:
  /// What is done with the preview from here, since the preview never has the keyboard.
  struct Preview {
    std::function<void()> toggle;
    /// Copies what is selected in it; false while nothing is.
    std::function<bool()> copySelection;
    std::function<void()> selectAll;
    /// Down, or up when negative.
    std::function<void(int pages)> scroll;
  };

  /// Both outlive this object. `clipboardText` gives what a paste into the field pastes, and waits for nobody.
  SearchBarModel(foundation::Published<std::string>& searchTerm, defaults::Defaults& defaults,
                 std::function<std::string()> clipboardText, Preview preview);

  [[nodiscard]] QString searchTerm() const;
  void setSearchTerm(const QString& term);
  [[nodiscard]] bool isIncognitoMode() const { return m_isIncognitoMode; }

  /// The clipboard's text on one line, cut to what anybody would search for.
  Q_INVOKABLE [[nodiscard]] QString clipboardText() const;
  Q_INVOKABLE void togglePreview() { m_preview.toggle(); }
  Q_INVOKABLE [[nodiscard]] bool copyFromPreview() { return m_preview.copySelection(); }
  Q_INVOKABLE void selectAllOfPreview() { m_preview.selectAll(); }
  Q_INVOKABLE void scrollPreview(int pages) { m_preview.scroll(pages); }

 signals:
  void searchTermChanged();
  void isIncognitoModeChanged();

 private:
  foundation::Published<std::string>& m_searchTerm;
  std::function<std::string()> m_clipboardText;
  Preview m_preview;
  bool m_isIncognitoMode = false;
  foundation::Subscription m_termSubscription;
  foundation::Subscription m_incognitoSubscription;
};

}  // namespace quillmonger
