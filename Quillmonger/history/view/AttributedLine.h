#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QObject>
#include <QVariant>

#include "Quillmonger/history/view/RowLine.h"

namespace quillmonger {

/// Runs as an opaque value, which a model hands through QML to an `AttributedLine`.
struct RowLine {
  TextRuns runs;
};

/// A row's line in the markup that a QML Text understands. What is dimmed has the Text's own colour, so that the
/// ellipsis of a cut line has it too. Not final, since QML derives from what it makes.
class AttributedLine : public QObject {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QVariant line READ line WRITE setLine NOTIFY changed)
  Q_PROPERTY(QColor hitColor READ hitColor WRITE setHitColor NOTIFY changed)
  Q_PROPERTY(QString text READ text NOTIFY changed)
  Q_PROPERTY(bool isPlain READ isPlain NOTIFY changed)

 public:
  using QObject::QObject;

  [[nodiscard]] QVariant line() const { return m_line; }
  void setLine(const QVariant& line);
  [[nodiscard]] QColor hitColor() const { return m_hitColor; }
  void setHitColor(const QColor& color);

  /// Whether `text` is to be shown as it is, with no markup in it.
  [[nodiscard]] bool isPlain() const;
  [[nodiscard]] QString text() const;

 signals:
  void changed();

 private:
  [[nodiscard]] TextRuns runs() const { return m_line.value<RowLine>().runs; }

  QVariant m_line;
  QColor m_hitColor;
};

}  // namespace quillmonger
