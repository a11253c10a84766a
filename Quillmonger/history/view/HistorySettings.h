#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <vector>

#include "Defaults/Defaults.h"

namespace quillmonger {

/// The settings that say how the rows look, as they stand at each moment. Main thread.
class HistorySettings final : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("made by the program")
  Q_PROPERTY(bool showSourceAppIcon READ showSourceAppIcon NOTIFY changed)
  Q_PROPERTY(bool showKeyboardShortcuts READ showKeyboardShortcuts NOTIFY changed)
  Q_PROPERTY(bool showContentTypeIndicators READ showContentTypeIndicators NOTIFY changed)
  Q_PROPERTY(bool showColorIndicator READ showColorIndicator NOTIFY changed)
  Q_PROPERTY(bool showScrollbar READ showScrollbar NOTIFY changed)
  Q_PROPERTY(bool alwaysPasteWithoutFormatting READ alwaysPasteWithoutFormatting NOTIFY changed)
  Q_PROPERTY(TruncationMode truncationMode READ truncationMode NOTIFY changed)

 public:
  /// The end at which a line is cut.
  enum TruncationMode { Head, Middle, Tail };
  Q_ENUM(TruncationMode)

  /// `defaults` outlives this object.
  explicit HistorySettings(defaults::Defaults& defaults);

  [[nodiscard]] bool showSourceAppIcon() const { return m_showSourceAppIcon; }
  [[nodiscard]] bool showKeyboardShortcuts() const { return m_showKeyboardShortcuts; }
  [[nodiscard]] bool showContentTypeIndicators() const { return m_showContentTypeIndicators; }
  [[nodiscard]] bool showColorIndicator() const { return m_showColorIndicator; }
  [[nodiscard]] bool showScrollbar() const { return m_showScrollbar; }
  [[nodiscard]] bool alwaysPasteWithoutFormatting() const { return m_alwaysPasteWithoutFormatting; }
  [[nodiscard]] TruncationMode truncationMode() const { return m_truncationMode; }

 signals:
  void changed();

 private:
  void follow(defaults::Defaults& defaults, const defaults::Key<bool>& key, bool& value);

  bool m_showSourceAppIcon = false;
  bool m_showKeyboardShortcuts = false;
  bool m_showContentTypeIndicators = false;
  bool m_showColorIndicator = false;
  bool m_showScrollbar = false;
  bool m_alwaysPasteWithoutFormatting = false;
  TruncationMode m_truncationMode = Middle;
  std::vector<foundation::Subscription> m_subscriptions;
};

}  // namespace quillmonger
