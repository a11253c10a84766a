#include "Quillmonger/search/SearchViewModel.h"

#include <algorithm>

#include "Defaults/Defaults.h"
#include "Quillmonger/settings/SettingsKeys.h"

namespace quillmonger {

namespace {

// What the settings file says can be any number, or none; a timer can't.
foundation::Seconds pauseOf(double setting) {
  constexpr double longest = 3600;
  return foundation::Seconds(setting > 0 ? std::min(setting, longest) : 0);
}

}  // namespace

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
  const auto pause = pauseOf(m_defaults[keys::searchDebounceInterval]);
  m_pause = m_runLoop.after(pause, [this] { m_debouncedSearchTerm.set(m_lastTerm); });
}

}  // namespace quillmonger
