#pragma once

#include <QtQml/qqmlregistration.h>
#include <QImage>
#include <QObject>
#include <QVariantList>
#include <functional>
#include <memory>
#include <vector>

#include "Defaults/Defaults.h"
#include "Foundation/BackgroundQueue.h"
#include "Foundation/Published.h"
#include "Foundation/RunLoop.h"
#include "Quillmonger/preview/LatestWork.h"
#include "Quillmonger/preview/OculetButtons.h"
#include "Quillmonger/preview/OculetCopying.h"
#include "Quillmonger/preview/PreviewViewModel.h"
#include "Quillmonger/preview/view/TextPiecesModel.h"
#include "Quillmonger/preview/view/TextSelection.h"

namespace quillmonger {

/// What the pane shows and what its buttons do. A picture is decoded beside the main thread. Main thread.
class PreviewModel final : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("made by the program")
  Q_PROPERTY(bool hasItem READ hasItem NOTIFY itemChanged)
  Q_PROPERTY(QImage picture READ picture NOTIFY pictureChanged)
  Q_PROPERTY(qreal pictureAspect READ pictureAspect NOTIFY pictureChanged)
  Q_PROPERTY(bool isPictureUnreadable READ isPictureUnreadable NOTIFY pictureChanged)
  Q_PROPERTY(QVariantList dateRows READ dateRows NOTIFY contentChanged)
  Q_PROPERTY(QVariantList colorRows READ colorRows NOTIFY contentChanged)
  Q_PROPERTY(bool hasJson READ hasJson NOTIFY contentChanged)
  Q_PROPERTY(bool isTextHidden READ isTextHidden NOTIFY contentChanged)
  Q_PROPERTY(TextPiecesModel* text READ text NOTIFY contentChanged)
  Q_PROPERTY(TextSelection* selection READ selection CONSTANT)
  Q_PROPERTY(QString selectedValue READ selectedValue WRITE setSelectedValue NOTIFY selectedValueChanged)
  Q_PROPERTY(int copiedButton READ copiedButton NOTIFY copiedButtonChanged)
  Q_PROPERTY(bool showsButtonKeys READ showsButtonKeys NOTIFY showsButtonKeysChanged)
  Q_PROPERTY(QString details READ details NOTIFY contentChanged)
  Q_PROPERTY(QString iconPath READ iconPath NOTIFY footerChanged)
  Q_PROPERTY(QString appName READ appName NOTIFY footerChanged)
  Q_PROPERTY(QString relativeDate READ relativeDate NOTIFY footerChanged)
  Q_PROPERTY(QString pasteCount READ pasteCount NOTIFY footerChanged)
  Q_PROPERTY(bool showScrollbar READ showScrollbar NOTIFY showScrollbarChanged)

 public:
  struct Collaborators {
    PreviewViewModel& preview;
    OculetCopying& copying;
    OculetButtons& buttons;
    /// Whether the key is held that presses the buttons together with a digit.
    foundation::Published<bool>& isOptionPressed;
    defaults::Defaults& defaults;
    foundation::BackgroundQueue& backgroundQueue;
    foundation::RunLoop& runLoop;
    /// Opens the settings at the pane about the appearance.
    std::function<void()> showAppearanceSettings;
  };
  /// In points.
  static constexpr int paneWidth = 332;

  /// All collaborators outlive this object.
  explicit PreviewModel(Collaborators collaborators);

  [[nodiscard]] bool hasItem() const { return m_with.preview.item().value() != nullptr; }
  /// Null until it has been decoded.
  [[nodiscard]] QImage picture() const { return m_picture; }
  /// The picture's height by its width, known before it is decoded; 0 when there is no picture.
  [[nodiscard]] qreal pictureAspect() const { return m_pictureAspect; }
  /// Whether the item is a picture that is damaged or too large.
  [[nodiscard]] bool isPictureUnreadable() const { return m_isPictureUnreadable; }
  /// Maps of "label", a text's key, and "value"; empty when there is no such result.
  [[nodiscard]] QVariantList dateRows() const { return m_dateRows; }
  [[nodiscard]] QVariantList colorRows() const { return m_colorRows; }
  [[nodiscard]] bool hasJson() const;
  [[nodiscard]] bool isTextHidden() const { return m_with.preview.content().value().isTextHidden; }
  [[nodiscard]] TextPiecesModel* text() { return m_text.get(); }
  [[nodiscard]] TextSelection* selection() { return &m_selection; }
  /// What is selected of a value in a panel. Only one of it and `selection` isn't empty.
  [[nodiscard]] QString selectedValue() const { return m_selectedValue; }
  void setSelectedValue(const QString& value);
  /// The copy button that shows that it has just copied, as `OculetButtons` numbers them; -1 for none.
  [[nodiscard]] int copiedButton() const;
  [[nodiscard]] bool showsButtonKeys() const { return m_with.isOptionPressed.value(); }
  [[nodiscard]] QString details() const;
  /// The source application's desktop entry; empty when there is none.
  [[nodiscard]] QString iconPath() const;
  [[nodiscard]] QString appName() const;
  [[nodiscard]] QString relativeDate() const;
  [[nodiscard]] QString pasteCount() const;
  [[nodiscard]] bool showScrollbar() const { return m_showScrollbar; }

  Q_INVOKABLE void pressCopyButton(int button);
  Q_INVOKABLE void showAppearanceSettings() { m_with.showAppearanceSettings(); }

  /// False, and nothing is copied, while nothing is selected.
  [[nodiscard]] bool copySelection();
  /// All of the text.
  void selectAll();

 signals:
  /// Another item, or none, is on show.
  void itemChanged();
  void pictureChanged();
  void contentChanged();
  void footerChanged();
  void showScrollbarChanged();
  void selectedValueChanged();
  void copiedButtonChanged();
  void showsButtonKeysChanged();
  /// By pages down, or up when negative.
  void scrollRequested(int pages);

 private:
  void takeItem(const PreviewViewModel::Item& item);
  void takeContent(const PreviewContent& content);
  void takePicture(const QImage& picture);

  Collaborators m_with;
  std::unique_ptr<TextPiecesModel> m_text;
  TextSelection m_selection;
  QString m_selectedValue;
  QVariantList m_dateRows;
  QVariantList m_colorRows;
  QImage m_picture;
  qreal m_pictureAspect = 0;
  bool m_isPictureUnreadable = false;
  bool m_showScrollbar = true;
  LatestWork m_decoding;
  std::vector<foundation::Subscription> m_subscriptions;
};

}  // namespace quillmonger
