#pragma once

#include <QtQml/qqmlregistration.h>
#include <QImage>
#include <QQuickPaintedItem>
#include <QString>
#include <memory>
#include <string_view>

#include "Quillmonger/guide/VideoLooper.h"
#include "Quillmonger/guide/view/GettingStartedModel.h"

namespace quillmonger {

/// A looped video with round corners, or a still of it where none can be played. Main thread. Not final, since the QML
/// engine derives from what it makes.
class VideoPicture : public QQuickPaintedItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(quillmonger::GettingStartedModel* model READ model WRITE setModel REQUIRED)
  /// The name of the video's resource, and of its still's.
  Q_PROPERTY(QString video READ video WRITE setVideo REQUIRED)
  Q_PROPERTY(bool isPlaying READ isPlaying WRITE setPlaying NOTIFY isPlayingChanged)
  /// Whether there is a video to be played. Known once the item is laid out.
  Q_PROPERTY(bool canPlay READ canPlay NOTIFY canPlayChanged)
  Q_PROPERTY(qreal radius READ radius WRITE setRadius)

 public:
  explicit VideoPicture(QQuickItem* parent = nullptr);

  [[nodiscard]] GettingStartedModel* model() const { return m_model; }
  [[nodiscard]] QString video() const { return m_video; }
  [[nodiscard]] bool isPlaying() const { return m_isPlaying; }
  [[nodiscard]] bool canPlay() const { return m_canPlay; }
  [[nodiscard]] qreal radius() const { return m_radius; }
  void setModel(GettingStartedModel* model) { m_model = model; }
  void setVideo(const QString& video) { m_video = video; }
  void setPlaying(bool isPlaying);
  void setRadius(qreal radius) { m_radius = radius; }

  void paint(QPainter* painter) override;

 signals:
  void isPlayingChanged();
  void canPlayChanged();

 private:
  void componentComplete() override;
  void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;
  void updatePolish() override;
  void applyPlaying();
  void show(std::string_view pixels);
  void setCanPlay(bool canPlay);

  GettingStartedModel* m_model = nullptr;
  QString m_video;
  qreal m_radius = 0;
  bool m_isPlaying = false;
  bool m_canPlay = false;
  bool m_hasFrame = false;
  QImage m_frame;
  QImage m_still;
  std::unique_ptr<VideoLooper> m_looper;
};

}  // namespace quillmonger
