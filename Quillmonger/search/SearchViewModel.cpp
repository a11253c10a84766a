#include "Quillmonger/search/SearchViewModel.h"

#include "Defaults/Defaults.h"
#include "Quillmonger/settings/SettingsKeys.h"

namespace quillmonger {

SearchViewModel::SearchViewModel(foundation::RunLoop& runLoop, defaults::Defaults& defaults)
    : m_runLoop(runLoop), m_defaults(defaults) {
  m_intervalSubscription = m_defaults.updates(keys::searchDebounceInterval, defaults::Defaults::Initial::yes,
                                              [this](double) { bindDebounce(); });
}

void SearchViewModel::bindDebounce() {
  m_lastTerm = m_searchTerm.value();
  m_termSubscription = m_searchTerm.subscribe([this](const std::string& term) { termChanged(term); });
  startPause();
}

void SearchViewModel::termChanged(const std::string& term) {
  if (term == m_lastTerm) return;
  m_lastTerm = term;
  startPause();
}

void SearchViewModel::startPause() {
  const foundation::Seconds interval{m_defaults[keys::searchDebounceInterval]};
  m_pause = m_runLoop.after(interval, [this] { m_debouncedSearchTerm.set(m_lastTerm); });
}

}  // namespace quillmonger
