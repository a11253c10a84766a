#include "KeyboardShortcuts/view/Recorders.h"

#include <algorithm>
#include <utility>

#include "Foundation/Fatal.h"

namespace keyboardshortcuts {

Recorders::Recorders(RecorderCocoa::Surroundings surroundings, std::vector<Name> names)
    : m_surroundings(std::move(surroundings)), m_names(std::move(names)) {}

std::unique_ptr<RecorderCocoa> Recorders::make(const QString& name, RecorderView& view) const {
  const auto found = std::ranges::find(m_names, name.toStdString(), &Name::rawValue);
  if (found == m_names.end()) foundation::stopProcess("A field is to record a chord that has no name.");
  return std::make_unique<RecorderCocoa>(*found, view, m_surroundings, nullptr);
}

}  // namespace keyboardshortcuts
