#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Quillmonger/search/Searchable.h"

namespace quillmonger {

/// Some texts, made ready once for many searches: folded as `FoldedText` does, and laid one after the other, so that a
/// term is looked for in all of them at the speed of memory. Takes as much memory as the texts; long ones are left out.
/// Immutable once they are all added. Any thread.
class PreparedTexts final {
 public:
  /// Longer texts, in bytes, are not prepared: searching those costs more than getting at them.
  static constexpr std::size_t longestText = 1024;

  /// What is known of a text before it is looked at.
  enum class Kind : std::uint8_t {
    plain,      ///< each byte is a character, and the folded text has the same bytes but for their case
    folded,     ///< the folded text contains a folded term if the text contains the term
    unprepared  ///< nothing
  };
  /// A text that contains the term, and the byte at which it does.
  struct Hit {
    std::size_t text;
    std::size_t offset;
  };

  /// `text`: valid UTF-8; absent for one that is to stay unprepared.
  void add(const std::optional<SharedText>& text);

  [[nodiscard]] std::size_t count() const { return m_kinds.size(); }
  [[nodiscard]] Kind kind(std::size_t text) const { return m_kinds[text]; }
  /// The first text from `first` on, and before `end`, whose folded form contains `foldedTerm`, which isn't empty.
  [[nodiscard]] std::optional<Hit> find(std::string_view foldedTerm, std::size_t first, std::size_t end) const;

 private:
  [[nodiscard]] std::size_t startOf(std::size_t text) const { return text == 0 ? 0 : m_ends[text - 1]; }

  std::string m_joined;  // each text closed by a byte that UTF-8 never has, so that no term reaches across
  std::vector<std::size_t> m_ends;
  std::vector<Kind> m_kinds;
};

}  // namespace quillmonger
