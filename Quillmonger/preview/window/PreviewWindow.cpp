#include "Quillmonger/preview/window/PreviewWindow.h"

#include <cmath>

namespace quillmonger {

namespace {

constexpr foundation::Seconds showDuration{0.35};
constexpr foundation::Seconds hideDuration{0.25};
constexpr double slideInPaddings = 6;

WindowFrame between(const WindowFrame& start, const WindowFrame& target, double progress) {
  return {std::lerp(start.left, target.left, progress), std::lerp(start.bottom, target.bottom, progress),
          std::lerp(start.width, target.width, progress), std::lerp(start.height, target.height, progress)};
}

}  // namespace

void PreviewWindow::show(const Window& parent, double padding) {
  if (isVisible() || m_isAnimating) return;
  const WindowFrame beside = parent.frame();
  const WindowFrame own = panel().frame();
  const double targetX = beside.left + beside.width + padding;
  panel().setLevel(parent.level() - 1);
  panel().setFrame({targetX - slideInPaddings * padding, beside.bottom, own.width, own.height});
  panel().setAlpha(0);
  orderFront();
  slide(showDuration, {targetX, beside.bottom, beside.width, beside.height}, 1, [this] { m_isAnimating = false; });
}

void PreviewWindow::hide() {
  if (!isVisible() || m_isAnimating) return;
  const WindowFrame own = panel().frame();
  slide(hideDuration, {own.left - own.width, own.bottom, own.width, own.height}, 0, [this] {
    orderOut();
    panel().setAlpha(1);
    m_isAnimating = false;
  });
}

void PreviewWindow::slide(foundation::Seconds duration, WindowFrame target, double targetAlpha,
                          const std::function<void()>& completion) {
  m_isAnimating = true;
  m_animation.run(
      duration,
      [this, start = panel().frame(), target, targetAlpha](double progress) {
        panel().setFrame(between(start, target, progress));
        panel().setAlpha(std::lerp(1 - targetAlpha, targetAlpha, progress));
      },
      completion);
}

}  // namespace quillmonger
