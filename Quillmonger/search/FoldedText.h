#pragma once

#include <unicode/edits.h>
#include <unicode/normalizer2.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace quillmonger {

/// A text in the form in which spellings are compared: composed, and folded to one case if wanted, with the way back
/// to the offsets of the text itself.
class FoldedText final {
 public:
  enum class Case { kept, folded };

  /// `text` is valid UTF-8.
  FoldedText(std::string_view text, Case letterCase);

  [[nodiscard]] const std::string& text() const { return m_folded; }
  /// Where the byte `offset` of the folded text lies in the text itself; absent within what one character became.
  [[nodiscard]] std::optional<std::size_t> sourceOffset(std::size_t offset) const;

 private:
  void compose(const icu::Normalizer2& composer, std::string_view text, std::string& composed, UErrorCode& status);

  std::string m_folded;
  icu::Edits m_composing;
  icu::Edits m_folding;
};

/// Whether case is folded as in Turkish and Azeri, where "I" and "i" are letters of two pairs.
[[nodiscard]] bool hasTurkicCase();

}  // namespace quillmonger
