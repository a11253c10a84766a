#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "Quillmonger/search/SearchResult.h"

namespace quillmonger {

/// How a term is to be read.
struct SearchOptions {
  bool isRegularExpression = false;
  bool isCaseSensitive = false;
  bool includesAppName = true;
};

/// One search term, made ready to be looked for in many texts. For one thread at a time.
class TextMatcher final {
 public:
  /// `term` is made valid UTF-8 first.
  TextMatcher(std::string_view term, const SearchOptions& options);
  TextMatcher(const TextMatcher&) = delete;
  TextMatcher& operator=(const TextMatcher&) = delete;
  ~TextMatcher();

  /// Whether the term is empty, or an expression of anchors alone: every item matches it, and nothing is highlighted.
  [[nodiscard]] bool isInert() const { return m_isInert; }

  /// The first occurrence in `text`, which is valid UTF-8. An empty one counts as one character wide. Absent also for
  /// an invalid expression, and for one that runs out of its time or memory on this text.
  [[nodiscard]] std::optional<CharacterRange> find(std::string_view text) const;

 private:
  class Engine;
  class AsciiEngine;
  class FoldingEngine;
  class RegularExpressionEngine;

  bool m_isInert;
  std::unique_ptr<Engine> m_engine;
};

}  // namespace quillmonger
