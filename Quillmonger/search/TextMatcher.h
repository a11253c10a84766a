#pragma once

#include <memory>
#include <optional>
#include <string_view>

#include "Quillmonger/search/CharacterRange.h"

namespace quillmonger {

/// How a term is to be read.
struct SearchOptions {
  bool isRegularExpression = false;
  bool isCaseSensitive = false;
  bool includesAppName = true;
};

/// One search term, made ready to be looked for in many texts. One thread at a time.
class TextMatcher {
 public:
  TextMatcher() = default;
  TextMatcher(const TextMatcher&) = delete;
  TextMatcher& operator=(const TextMatcher&) = delete;
  virtual ~TextMatcher() = default;

  /// The first occurrence in `text`, which is valid UTF-8. An empty one counts as one character wide, so that an empty
  /// text has none.
  [[nodiscard]] virtual std::optional<CharacterRange> find(std::string_view text) = 0;
  /// What the folded form (`FoldedText`) of every text that `find` finds something in contains; empty when no such
  /// thing is known.
  [[nodiscard]] virtual std::string_view foldedTerm() const = 0;
  /// Whether a text of ASCII letters that contains `foldedTerm` in any case is sure to contain the term.
  [[nodiscard]] virtual bool isAnyCaseFound() const = 0;
};

/// Whether every item matches the term, with nothing to highlight: an empty term, or an expression of nothing but "^"
/// or nothing but "$".
[[nodiscard]] bool isInert(std::string_view term, const SearchOptions& options);

/// The matcher of a term that isn't inert.
[[nodiscard]] std::unique_ptr<TextMatcher> makeTextMatcher(std::string_view term, const SearchOptions& options);

}  // namespace quillmonger
