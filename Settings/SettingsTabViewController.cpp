#include "Settings/SettingsTabViewController.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "Settings/SegmentedControlStyleViewController.h"
#include "Settings/ToolbarItemStyleViewController.h"

namespace settings {

namespace {

std::unique_ptr<SettingsStyleController> makeStyleController(Style style, const SettingsStyleController::Panes& panes) {
  if (style == Style::segmentedControl) return std::make_unique<SegmentedControlStyleViewController>(panes);
  return std::make_unique<ToolbarItemStyleViewController>(panes, ToolbarItemStyleViewController::Placement::leading);
}

Frame between(const Frame& start, const Frame& target, double progress) {
  return {std::lerp(start.left, target.left, progress), std::lerp(start.top, target.top, progress),
          std::lerp(start.width, target.width, progress), std::lerp(start.height, target.height, progress)};
}

}  // namespace

SettingsTabViewController::SettingsTabViewController(std::vector<Pane> panes, Style style, Animation isAnimated,
                                                     std::string singlePaneTitle, SettingsWindow& window)
    : m_styleController(makeStyleController(style, m_panes)),
      m_isAnimated(isAnimated),
      m_singlePaneTitle(std::move(singlePaneTitle)),
      m_window(window) {
  for (Pane& pane : panes)
    m_panes.push_back(std::make_unique<PaneHostingController>(std::move(pane)));
  for (std::size_t pane = 0; pane < m_panes.size(); ++pane)
    view(pane).onFittingSizeChanged([this, pane] { fitWindow(pane); });
  m_styleController->delegate = [this](std::size_t pane) { activateTab(pane); };
}

void SettingsTabViewController::activateTab(const PaneIdentifier& pane) {
  const auto found = std::ranges::find(m_panes, pane, [](const auto& each) { return each->paneIdentifier(); });
  activateTab(found == m_panes.end() ? 0 : static_cast<std::size_t>(found - m_panes.begin()));
}

void SettingsTabViewController::activateTab(std::size_t pane) {
  if (pane >= m_panes.size()) return;
  const auto previous = std::exchange(m_activeTab, pane);
  m_styleController->selectTab(pane);
  if (previous != pane) present(previous);
}

void SettingsTabViewController::restoreInitialTab() {
  if (!m_activeTab) activateTab(0);
}

void SettingsTabViewController::present(std::optional<std::size_t> previous) {
  m_window.endAnimation();
  if (m_isAnimated == Animation::on && previous) {
    crossFade(*previous);
  } else {
    swap(previous);
  }
  m_window.setTitle(titleFor(*m_activeTab));
}

void SettingsTabViewController::swap(std::optional<std::size_t> previous) {
  if (previous) view(*previous).setAlpha(0);
  m_window.setFrame(frameFor(*m_activeTab));
  view(*m_activeTab).setAlpha(1);
}

void SettingsTabViewController::crossFade(std::size_t previous) {
  const std::size_t next = *m_activeTab;
  m_window.setUserInteractionEnabled(false);
  m_window.animate(
      [this, previous, next, start = m_window.frame(), target = frameFor(next)](double progress) {
        m_window.setFrame(between(start, target, progress));
        view(previous).setAlpha(1 - progress);
        view(next).setAlpha(progress);
      },
      [this, next] {
        // It may want another size by now.
        fitWindow(next);
        m_window.setUserInteractionEnabled(true);
      });
}

void SettingsTabViewController::fitWindow(std::size_t pane) {
  if (pane == m_activeTab) m_window.setFrame(frameFor(pane));
}

// The top edge stays, so that the title bar does.
Frame SettingsTabViewController::frameFor(std::size_t pane) const {
  const Frame present = m_window.frame();
  const Size size = m_window.frameRectForContentRect(view(pane).fittingSize());
  const double shift = m_styleController->isKeepingWindowCentered() ? (present.width - size.width) / 2 : 0;
  return {present.left + shift, present.top, size.width, size.height};
}

const std::string& SettingsTabViewController::titleFor(std::size_t pane) const {
  return m_panes.size() < 2 ? m_singlePaneTitle : m_panes.at(pane)->paneTitle();
}

}  // namespace settings
