#include "Quillmonger/guide/view/VideoPicture.h"

#include <QBrush>
#include <QPainter>
#include <QQuickWindow>
#include <QTransform>
#include <cstring>

namespace quillmonger {

VideoPicture::VideoPicture(QQuickItem* parent) : QQuickPaintedItem(parent) {}

void VideoPicture::componentComplete() {
  QQuickPaintedItem::componentComplete();
  polish();
}

// Without a size, or outside a window, nothing could be made yet.
void VideoPicture::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) {
  QQuickPaintedItem::geometryChange(newGeometry, oldGeometry);
  if (isComponentComplete() && !m_looper) polish();
}

// Only now does the item have its size.
void VideoPicture::updatePolish() {
  if (m_looper || window() == nullptr || width() < 1 || height() < 1) return;
  const QSize size = (QSizeF(width(), height()) * window()->effectiveDevicePixelRatio()).toSize();
  m_frame = QImage(size, QImage::Format_RGB32);
  m_looper =
      m_model->makeVideoLooper(m_video.toStdString(), {size.width(), size.height()},
                               {[this](std::string_view pixels) { show(pixels); }, [this] { setCanPlay(false); }});
  setCanPlay(m_looper != nullptr);
  applyPlaying();
}

void VideoPicture::setPlaying(bool isPlaying) {
  if (m_isPlaying == isPlaying) return;
  m_isPlaying = isPlaying;
  emit isPlayingChanged();
  applyPlaying();
}

void VideoPicture::applyPlaying() {
  if (!m_looper) return;
  if (m_isPlaying) {
    m_looper->play();
  } else {
    m_looper->pause();
  }
}

void VideoPicture::setCanPlay(bool canPlay) {
  if (m_canPlay == canPlay) return;
  m_canPlay = canPlay;
  emit canPlayChanged();
  update();
}

void VideoPicture::show(std::string_view pixels) {
  if (pixels.size() != static_cast<std::size_t>(m_frame.sizeInBytes())) return;
  std::memcpy(m_frame.bits(), pixels.data(), pixels.size());
  m_hasFrame = true;
  update();
}

void VideoPicture::paint(QPainter* painter) {
  // Before the first frame of a video there is a moment in which the still, a scene from its middle, would flash up.
  const bool awaitsFrame = m_canPlay && m_isPlaying && !m_hasFrame;
  if (awaitsFrame) return;
  if (!m_hasFrame && m_still.isNull())
    m_still.load(QStringLiteral(":/qt-project.org/imports/Quillmonger/Resources/%1.jpg").arg(m_video));
  const QImage& picture = m_hasFrame ? m_frame : m_still;
  if (picture.isNull()) return;
  QBrush brush(picture);
  brush.setTransform(QTransform::fromScale(width() / picture.width(), height() / picture.height()));
  painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
  painter->setPen(Qt::NoPen);
  painter->setBrush(brush);
  painter->drawRoundedRect(QRectF(0, 0, width(), height()), m_radius, m_radius);
}

}  // namespace quillmonger
