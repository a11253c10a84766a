#include "Quillmonger/guide/GettingStartedViewModel.h"

#include <utility>

namespace quillmonger {

GettingStartedViewModel::GettingStartedViewModel(Endings endings) : m_endings(std::move(endings)) {}

void GettingStartedViewModel::forward() {
  if (screenAfter(m_currentScreen.value())) {
    showNext();
  } else {
    m_endings.finish();
  }
}

void GettingStartedViewModel::back() {
  if (screenBefore(m_currentScreen.value())) {
    showPrevious();
  } else {
    m_endings.quit();
  }
}

void GettingStartedViewModel::showNext() {
  if (const auto next = screenAfter(m_currentScreen.value())) m_currentScreen.set(*next);
}

void GettingStartedViewModel::showPrevious() {
  if (const auto previous = screenBefore(m_currentScreen.value())) m_currentScreen.set(*previous);
}

}  // namespace quillmonger
