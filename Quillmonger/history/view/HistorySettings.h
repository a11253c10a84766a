#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>

namespace quillmonger {

/// The settings that say how the rows look. Main thread.
class HistorySettings final : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("made by the program")
  Q_PROPERTY(bool showSourceAppIcon READ showSourceAppIcon NOTIFY changed)
  Q_PROPERTY(bool showKeyboardShortcuts READ showKeyboardShortcuts NOTIFY changed)
  Q_PROPERTY(bool showContentTypeIndicators READ showContentTypeIndicators NOTIFY changed)
  Q_PROPERTY(bool showScrollbar READ showScrollbar NOTIFY changed)
  Q_PROPERTY(bool alwaysPasteWithoutFormatting READ alwaysPasteWithoutFormatting NOTIFY changed)
  Q_PROPERTY(TruncationMode truncationMode READ truncationMode NOTIFY changed)

 public:
  /// The end at which a line is cut.
  enum TruncationMode { Head, Middle, Tail };
  Q_ENUM(TruncationMode)

  struct Values {
    bool showSourceAppIcon = true;
    bool showKeyboardShortcuts = true;
    bool showContentTypeIndicators = true;
    bool showScrollbar = true;
    bool alwaysPasteWithoutFormatting = false;
    TruncationMode truncationMode = Middle;
  };

  [[nodiscard]] const Values& values() const { return m_values; }
  void setValues(const Values& values);

  [[nodiscard]] bool showSourceAppIcon() const { return m_values.showSourceAppIcon; }
  [[nodiscard]] bool showKeyboardShortcuts() const { return m_values.showKeyboardShortcuts; }
  [[nodiscard]] bool showContentTypeIndicators() const { return m_values.showContentTypeIndicators; }
  [[nodiscard]] bool showScrollbar() const { return m_values.showScrollbar; }
  [[nodiscard]] bool alwaysPasteWithoutFormatting() const { return m_values.alwaysPasteWithoutFormatting; }
  [[nodiscard]] TruncationMode truncationMode() const { return m_values.truncationMode; }

 signals:
  void changed();

 private:
  Values m_values;
};

}  // namespace quillmonger
