#include "Quillmonger/history/view/AttributedLine.h"

#include <algorithm>

namespace quillmonger {

namespace {

bool joinsToNext(QChar letter) {
  return letter.joiningType() == QChar::Joining_Dual || letter.joiningType() == QChar::Joining_Left ||
         letter.joiningType() == QChar::Joining_Causing;
}

bool joinsToPrevious(QChar letter) {
  return letter.joiningType() == QChar::Joining_Dual || letter.joiningType() == QChar::Joining_Right ||
         letter.joiningType() == QChar::Joining_Causing;
}

// Marks stand upon the letter before them and don't part it from the next one.
QChar lastLetter(const QString& text) {
  const auto letter = std::ranges::find_if_not(text.crbegin(), text.crend(), [](QChar character) {
    return character.joiningType() == QChar::Joining_Transparent;
  });
  return letter == text.crend() ? QChar() : *letter;
}

// A run is shaped for itself: where a style begins inside a word of letters that join, a joiner on each side keeps
// their forms.
void joinLetters(TextRuns& runs) {
  constexpr QChar joiner(0x200D);
  for (qsizetype next = 1; next < runs.size(); ++next) {
    QString& before = runs[next - 1].text;
    QString& after = runs[next].text;
    if (!joinsToNext(lastLetter(before)) || !joinsToPrevious(after.front())) continue;
    before.append(joiner);
    after.prepend(joiner);
  }
}

// A blank at the edge of a tag would be dropped by the markup.
QString markup(const QString& text) {
  QString escaped = text.toHtmlEscaped();
  if (escaped.endsWith(u' ')) escaped.replace(escaped.size() - 1, 1, QStringLiteral("&nbsp;"));
  if (escaped.startsWith(u' ')) escaped.replace(0, 1, QStringLiteral("&nbsp;"));
  return escaped;
}

}  // namespace

void AttributedLine::setLine(const QVariant& line) {
  m_line = line;
  emit changed();
}

void AttributedLine::setHitColor(const QColor& color) {
  if (color == m_hitColor) return;
  m_hitColor = color;
  emit changed();
}

bool AttributedLine::isPlain() const {
  const TextRuns present = runs();
  return std::ranges::all_of(present, [](const TextRun& run) { return run.style == TextRun::Style::plain; });
}

QString AttributedLine::text() const {
  TextRuns present = runs();
  if (isPlain()) return plainText(present);
  joinLetters(present);
  QString text;
  for (const TextRun& run : present) {
    text += run.style == TextRun::Style::bold
                ? QStringLiteral("<font color=\"%1\"><b>%2</b></font>").arg(m_hitColor.name(), markup(run.text))
                : markup(run.text);
  }
  return text;
}

}  // namespace quillmonger
