#pragma once

#include <QList>
#include <QString>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "Quillmonger/history/ClipboardItemViewModel.h"
#include "Quillmonger/search/SearchResult.h"

namespace quillmonger {

/// A part of a line in one style.
struct TextRun {
  enum class Style {
    plain,   ///< as the line
    dimmed,  ///< in the secondary colour, beside a hit
    bold     ///< a hit
  };
  QString text;
  Style style = Style::plain;

  bool operator==(const TextRun&) const = default;
};
using TextRuns = QList<TextRun>;

/// `string` with the characters of `matches` bold and the rest dimmed; plain when there is no match. A range that lies
/// past the end is left out. Ranges ascend and don't overlap; others stop the process.
[[nodiscard]] TextRuns attributedLine(std::string_view string, std::span<const CharacterRange> matches);

/// The runs as they look in one line: each stretch of white space and line ends is one blank, and control characters
/// are their pictures.
[[nodiscard]] TextRuns onOneLine(const TextRuns& runs);

/// The line of a row. Between the two ends of a text that is too long to be read whole stands an ellipsis, which lies
/// outside what a row can show, whichever end of the line is cut.
[[nodiscard]] TextRuns rowLine(const RowText& text, const std::optional<CharacterRange>& match);

/// What stands for a control character; any other character is itself.
[[nodiscard]] QChar controlPicture(QChar character);

/// The text, of the same length, in which an emoji of several characters, some flags among them, is shown as one. Qt
/// looks for a font for each character, and fonts for emoji lack the variation selector that may stand before a joiner:
/// it would part what is joined.
[[nodiscard]] QString withWholeEmoji(QString text);

[[nodiscard]] QString plainText(const TextRuns& runs);

}  // namespace quillmonger
