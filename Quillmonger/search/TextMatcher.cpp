#include "Quillmonger/search/TextMatcher.h"

#include "Foundation/Text.h"
#include "Quillmonger/search/LiteralMatcher.h"
#include "Quillmonger/search/RegularExpressionMatcher.h"

namespace quillmonger {

bool isInert(std::string_view term, const SearchOptions& options) {
  if (term.empty()) return true;
  if (!options.isRegularExpression) return false;
  return term.find_first_not_of('^') == std::string_view::npos || term.find_first_not_of('$') == std::string_view::npos;
}

std::unique_ptr<TextMatcher> makeTextMatcher(std::string_view term, const SearchOptions& options) {
  const auto validTerm = foundation::toValidUtf8(term);
  if (options.isRegularExpression) return std::make_unique<RegularExpressionMatcher>(validTerm, options);
  return std::make_unique<LiteralMatcher>(validTerm, options);
}

}  // namespace quillmonger
