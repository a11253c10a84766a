#include "Sauce/InputSource.h"

#include <utility>

#include "Foundation/Uuid.h"

namespace sauce {

InputSource::InputSource(std::optional<std::string> identifier)
    : id(identifier ? std::move(*identifier) : foundation::Uuid::random().toString()) {}

}  // namespace sauce

std::size_t std::hash<sauce::InputSource>::operator()(const sauce::InputSource& source) const noexcept {
  return std::hash<std::string>{}(source.id) * 31 + std::hash<std::optional<std::string>>{}(source.modeID);
}
