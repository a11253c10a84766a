#include "Quillmonger/history/view/AttributedLine.h"

#include <algorithm>

namespace quillmonger {

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
  const TextRuns present = runs();
  if (isPlain()) return plainText(present);
  QString text;
  for (const TextRun& run : present) {
    // Blanks at the edge of a tag would be dropped by the markup.
    const QString escaped = run.text.toHtmlEscaped().replace(u' ', QStringLiteral("&nbsp;"));
    text += run.style == TextRun::Style::bold
                ? QStringLiteral("<font color=\"%1\"><b>%2</b></font>").arg(m_hitColor.name(), escaped)
                : escaped;
  }
  return text;
}

}  // namespace quillmonger
