#include "Quillmonger/search/view/SearchBarModel.h"

#include <utility>

#include "Quillmonger/settings/SettingsKeys.h"

namespace quillmonger {

SearchBarModel::SearchBarModel(foundation::Published<std::string>& searchTerm, defaults::Defaults& defaults,
                               std::function<std::string()> clipboardText, Preview preview)
    : m_searchTerm(searchTerm),
      m_clipboardText(std::move(clipboardText)),
      m_preview(std::move(preview)),
      m_termSubscription(searchTerm.subscribe([this](const std::string&) { emit searchTermChanged(); })) {
  m_incognitoSubscription =
      defaults.updates<bool>(keys::isIncognitoMode, defaults::Defaults::Initial::yes, [this](const bool& isOn) {
        m_isIncognitoMode = isOn;
        emit isIncognitoModeChanged();
      });
}

QString SearchBarModel::searchTerm() const { return QString::fromStdString(m_searchTerm.value()); }

// The field writes what it was just told, too.
void SearchBarModel::setSearchTerm(const QString& term) {
  if (term != searchTerm()) m_searchTerm.set(term.toStdString());
}

QString SearchBarModel::clipboardText() const {
  constexpr qsizetype longestTerm = 1000;
  return QString::fromStdString(m_clipboardText()).simplified().left(longestTerm);
}

}  // namespace quillmonger
