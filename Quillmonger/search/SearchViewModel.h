#pragma once

#include <string>

#include "Foundation/Published.h"
#include "Foundation/RunLoop.h"
#include "Foundation/Subscription.h"

namespace defaults {
class Defaults;
}

namespace quillmonger {

/// The state of the search field: the term as typed, and the term after a pause. Main thread.
class SearchViewModel final {
 public:
  /// Both outlive this object.
  SearchViewModel(foundation::RunLoop& runLoop, defaults::Defaults& defaults);
  SearchViewModel(const SearchViewModel&) = delete;
  SearchViewModel& operator=(const SearchViewModel&) = delete;
  ~SearchViewModel() = default;

  /// The text of the field, at every keystroke. The field writes it, and so does whoever opens the window.
  [[nodiscard]] foundation::Published<std::string>& searchTerm() { return m_searchTerm; }
  /// The term that a search should use: `searchTerm`, once it has rested for the setting `searchDebounceInterval`, an
  /// hour at most. A term that came back to its old value within the pause is told again.
  [[nodiscard]] foundation::Published<std::string>& debouncedSearchTerm() { return m_debouncedSearchTerm; }

 private:
  void bindDebounce();
  void termChanged(const std::string& term);
  void startPause();

  foundation::RunLoop& m_runLoop;
  defaults::Defaults& m_defaults;
  foundation::Published<std::string> m_searchTerm;
  foundation::Published<std::string> m_debouncedSearchTerm;
  std::string m_lastTerm;
  foundation::Subscription m_pause;
  foundation::Subscription m_termSubscription;
  foundation::Subscription m_intervalSubscription;
};

}  // namespace quillmonger
