#include "Quillmonger/capture/TypeFilter.h"

#include <algorithm>

#include "Quillmonger/capture/PasteboardTypes.h"

namespace quillmonger {

bool TypeFilter::accepts(const std::vector<std::string>& types) const {
  const auto hasOneOf = [&types](const PasteboardTypeSet& set) {
    return std::ranges::any_of(types, [&set](const std::string& type) { return set.contains(type); });
  };
  if (isIncognitoMode) return false;
  if (!hasOneOf(supportedTypes())) return false;
  if (hasOneOf(ignoredTypes())) return false;
  if (ignoreSensitiveData && hasOneOf(concealedTypes())) return false;
  return !(ignoreImages && hasOneOf(imageTypes()));
}

}  // namespace quillmonger
