#include "Quillmonger/history/view/RowLine.h"

#include <algorithm>

#include "Foundation/Fatal.h"
#include "Quillmonger/search/CharacterCursor.h"

namespace quillmonger {

namespace {

constexpr char16_t controlPictures = 0x2400;
constexpr char16_t pictureOfDelete = 0x2421;

// Where each character starts, in bytes.
std::vector<std::size_t> characterStarts(std::string_view text) {
  std::vector<std::size_t> starts;
  CharacterCursor cursor(text);
  for (std::size_t at = 0; at < text.size(); ++at) {
    const bool isInsideSequence = (static_cast<unsigned char>(text[at]) & 0xC0U) == 0x80U;
    if (!isInsideSequence && cursor.advanceTo(at)) starts.push_back(at);
  }
  return starts;
}

void append(TextRuns& runs, std::string_view part, TextRun::Style style) {
  if (!part.empty()) runs.append({QString::fromUtf8(part.data(), static_cast<qsizetype>(part.size())), style});
}

}  // namespace

QChar controlPicture(QChar character) {
  if (character.category() != QChar::Other_Control) return character;
  if (character.unicode() < 0x20) return QChar(static_cast<char16_t>(controlPictures + character.unicode()));
  return character.unicode() == 0x7F ? QChar(pictureOfDelete) : QChar(QChar::ReplacementCharacter);
}

TextRuns attributedLine(std::string_view string, std::span<const CharacterRange> matches) {
  TextRuns runs;
  if (matches.empty()) {
    append(runs, string, TextRun::Style::plain);
    return runs;
  }
  const auto starts = characterStarts(string);
  std::size_t cursor = 0;
  for (const CharacterRange& range : matches) {
    const std::size_t to = std::min(range.upper, starts.size());
    if (to < range.lower || to == starts.size()) continue;
    const std::size_t from = starts[range.lower];
    const std::size_t end = to + 1 < starts.size() ? starts[to + 1] : string.size();
    if (from < cursor) foundation::stopProcess("Highlighted ranges must be in ascending order.");
    append(runs, string.substr(cursor, from - cursor), TextRun::Style::dimmed);
    append(runs, string.substr(from, end - from), TextRun::Style::bold);
    cursor = end;
  }
  append(runs, string.substr(cursor), TextRun::Style::dimmed);
  return runs;
}

QString withWholeEmoji(QString text) {
  return text.replace(QStringLiteral("\uFE0F\u200D"), QStringLiteral("\u200D\u200D"));
}

TextRuns onOneLine(const TextRuns& runs) {
  TextRuns line;
  bool isAfterBlank = false;
  for (const TextRun& run : runs) {
    QString text;
    text.reserve(run.text.size());
    for (const QChar character : run.text) {
      const bool isBlank = character.isSpace();
      if (!isBlank) text.append(controlPicture(character));
      if (isBlank && !isAfterBlank) text.append(u' ');
      isAfterBlank = isBlank;
    }
    if (!text.isEmpty()) line.append({withWholeEmoji(text), run.style});
  }
  return line;
}

TextRuns rowLine(const RowText& text, const std::optional<CharacterRange>& match) {
  TextRuns runs = attributedLine(text.head, match ? std::span(&*match, 1) : std::span<const CharacterRange>());
  if (!text.tail.empty()) append(runs, "\u2026" + text.tail, match ? TextRun::Style::dimmed : TextRun::Style::plain);
  return onOneLine(runs);
}

QString plainText(const TextRuns& runs) {
  QString text;
  for (const TextRun& run : runs)
    text.append(run.text);
  return text;
}

}  // namespace quillmonger
