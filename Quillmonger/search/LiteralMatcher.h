#pragma once

#include <cstddef>
#include <string>

#include "Quillmonger/search/TextMatcher.h"

namespace quillmonger {

/// Looks for a term as it stands. Canonically equivalent spellings are the same; without case sensitivity so are
/// spellings that differ in case alone, as the current locale has it. An occurrence consists of whole characters:
/// "e" is not found in an "e" that carries an accent.
class LiteralMatcher final : public TextMatcher {
 public:
  /// `term` is valid UTF-8 and not empty.
  LiteralMatcher(std::string_view term, const SearchOptions& options);

  [[nodiscard]] std::optional<CharacterRange> find(std::string_view text) override;
  [[nodiscard]] std::string_view foldedTerm() const override { return m_foldedTerm; }
  [[nodiscard]] bool isAnyCaseFound() const override { return !m_isCaseSensitive; }

 private:
  [[nodiscard]] std::size_t findAscii(std::string_view text, std::size_t from) const;
  [[nodiscard]] std::optional<CharacterRange> findInAscii(std::string_view text) const;
  [[nodiscard]] std::optional<CharacterRange> findInFolded(std::string_view text) const;

  bool m_isCaseSensitive;
  std::string m_term;  // composed and, without case sensitivity, folded
  std::string m_foldedTerm;
  bool m_isAsciiTerm;
};

}  // namespace quillmonger
