#pragma once

#include <cstddef>
#include <memory>

#include "Quillmonger/search/TextMatcher.h"

namespace quillmonger {

/// Looks for what an expression in ICU's syntax matches. An invalid expression finds nothing, nor does one on a text
/// that takes it too much time or memory; and when one search has cost too much in all, it finds nothing more.
class RegularExpressionMatcher final : public TextMatcher {
 public:
  /// Longer expressions, in bytes, count as invalid.
  static constexpr std::size_t longestExpression = 4096;

  /// `expression` is valid UTF-8.
  RegularExpressionMatcher(std::string_view expression, const SearchOptions& options);
  ~RegularExpressionMatcher() override;

  [[nodiscard]] std::optional<CharacterRange> find(std::string_view text) override;
  [[nodiscard]] std::string_view foldedTerm() const override { return {}; }
  [[nodiscard]] bool isAnyCaseFound() const override { return false; }

 private:
  struct Engine;
  std::unique_ptr<Engine> m_engine;  // null for an invalid expression
};

}  // namespace quillmonger
