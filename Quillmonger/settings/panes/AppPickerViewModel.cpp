#include "Quillmonger/settings/panes/AppPickerViewModel.h"

#include <algorithm>
#include <utility>

namespace quillmonger {

AppPickerViewModel::AppPickerViewModel(const Collaborators& collaborators, AppPicker::Completion completion)
    : m_completion(std::move(completion)) {
  load(collaborators);
}

void AppPickerViewModel::load(const Collaborators& collaborators) {
  const auto& installed = collaborators.installedApplications;
  auto& runLoop = collaborators.runLoop;
  collaborators.backgroundQueue.async([this, isAlive = std::weak_ptr(m_isAlive), &installed, &runLoop] {
    auto finder = std::make_shared<const ApplicationFinder>(installed.applications());
    runLoop.post([this, isAlive, finder] {
      if (isAlive.expired()) return;
      m_finder = finder;
      m_isLoading.set(false);
      search();
    });
  });
}

void AppPickerViewModel::setSearchTerm(std::string term) {
  m_searchTerm = std::move(term);
  search();
}

void AppPickerViewModel::search() {
  if (!m_finder) return;
  m_applications.set(m_finder->find(m_searchTerm));
  m_selectedRow.set(m_applications.value().empty() ? std::nullopt : std::optional<std::size_t>(0));
}

void AppPickerViewModel::select(std::size_t row) {
  if (row < m_applications.value().size()) m_selectedRow.set(row);
}

void AppPickerViewModel::moveSelection(int rows) {
  if (!m_selectedRow.value()) return;
  const auto last = static_cast<std::ptrdiff_t>(m_applications.value().size()) - 1;
  const auto row = static_cast<std::ptrdiff_t>(*m_selectedRow.value()) + rows;
  m_selectedRow.set(static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(row, 0, last)));
}

void AppPickerViewModel::choose() {
  const auto row = m_selectedRow.value();
  if (row) end(m_applications.value().at(*row)->url);
}

void AppPickerViewModel::cancel() { end(std::nullopt); }

// The completion may be the end of this object: the location is a copy.
void AppPickerViewModel::end(std::optional<foundation::Url> url) {
  const auto completion = std::exchange(m_completion, nullptr);
  if (completion) completion(url);
}

}  // namespace quillmonger
