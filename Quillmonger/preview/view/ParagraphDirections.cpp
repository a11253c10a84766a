#include "Quillmonger/preview/view/ParagraphDirections.h"

#include <QTextBlock>
#include <QTextBlockFormat>
#include <QTextCursor>
#include <QTextDocument>

namespace quillmonger {

void ParagraphDirections::apply(QQuickTextDocument* document) const {
  QTextDocument& text = *document->textDocument();
  const bool isRightToLeft = text.firstBlock().text().isRightToLeft();
  for (QTextBlock paragraph = text.firstBlock(); paragraph.isValid(); paragraph = paragraph.next()) {
    const bool isOwnRightToLeft = paragraph.text().isRightToLeft();
    if (isOwnRightToLeft == isRightToLeft) continue;
    QTextBlockFormat format;
    format.setLayoutDirection(isOwnRightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    QTextCursor(paragraph).mergeBlockFormat(format);
  }
}

}  // namespace quillmonger
