#include "Quillmonger/search/view/SearchBarModel.h"

#include <string>
#include <utility>

namespace quillmonger {

SearchBarModel::SearchBarModel(foundation::Published<std::string>& searchTerm, std::function<void()> togglePreview)
    : m_searchTerm(searchTerm),
      m_togglePreview(std::move(togglePreview)),
      m_termSubscription(searchTerm.subscribe([this](const std::string&) { emit searchTermChanged(); })) {}

QString SearchBarModel::searchTerm() const { return QString::fromStdString(m_searchTerm.value()); }

// The field writes what it was just told, too.
void SearchBarModel::setSearchTerm(const QString& term) {
  if (term != searchTerm()) m_searchTerm.set(term.toStdString());
}

void SearchBarModel::setIncognitoMode(bool isOn) {
  if (std::exchange(m_isIncognitoMode, isOn) != isOn) emit isIncognitoModeChanged();
}

}  // namespace quillmonger
