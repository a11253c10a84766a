#include "Quillmonger/shell/WindowManager.h"

namespace quillmonger {

namespace {

constexpr double previewPadding = 6;

}  // namespace

WindowManager::WindowManager(const Collaborators& collaborators)
    : BaseEventManager(collaborators.eventMonitoring),
      m_with(collaborators),
      m_previewWindow(collaborators.previewPanel, collaborators.runLoop, collaborators.motion) {
  m_previewWindow.visibilityChanged = [this](bool isVisible) { m_previewVisibility.isVisible().set(isVisible); };
}

void WindowManager::toggleAppWindow() {
  if (m_with.appWindow.isVisible()) {
    hideAppWindow();
  } else {
    showAppWindow();
  }
}

void WindowManager::showAppWindow() {
  if (m_with.appWindow.isVisible()) return;
  m_with.settingsWindowController.window().orderOut();
  m_with.aboutWindow.orderOut();
  m_with.runLoop.post([this, isAlive = std::weak_ptr(m_isAlive)] {
    if (!isAlive.expired()) presentAppWindow();
  });
}

void WindowManager::presentAppWindow() {
  m_with.searchViewModel.searchTerm().set({});
  m_with.clipboardViewModel.setSearchTerm({});
  m_with.clipboardViewModel.search();
  // The key may have been released while the window was away.
  m_with.clipboardViewModel.isOptionPressed().set(false);
  m_with.clipboardViewModel.selectFirstItem();
  m_with.application.activateIgnoringOtherApps();
  m_with.appWindow.center();
  m_with.appWindow.makeKeyAndOrderFront();
  m_with.notificationCenter.post("ClipboardActivated", this);
}

void WindowManager::hideAppWindow() {
  m_previewWindow.hide();
  m_with.appWindow.orderOut();
  m_with.application.hide();
}

void WindowManager::orderHistoryOut() {
  m_with.appWindow.orderOut();
  m_previewWindow.orderOut();
}

void WindowManager::showSettingsWindow(SettingsPane pane) {
  orderHistoryOut();
  m_with.application.activateIgnoringOtherApps();
  m_with.settingsWindowController.show(pane == SettingsPane::appearance ? std::optional<std::string_view>("appearance")
                                                                        : std::nullopt);
  m_with.settingsWindowController.window().makeKeyAndOrderFront();
}

void WindowManager::showAboutWindow() {
  orderHistoryOut();
  m_with.application.activateIgnoringOtherApps();
  m_with.aboutWindow.center();
  m_with.aboutWindow.makeKeyAndOrderFront();
}

void WindowManager::showGettingStartedWindow() {
  m_with.gettingStartedWindow.center();
  m_with.gettingStartedWindow.makeKeyAndOrderFront();
}

void WindowManager::hideGettingStartedWindow() { m_with.gettingStartedWindow.orderOut(); }

void WindowManager::togglePreviewWindow() {
  if (m_previewWindow.isVisible()) {
    m_previewWindow.hide();
  } else if (m_with.appWindow.isVisible()) {
    showPreviewWindow();
  }
}

void WindowManager::showPreviewWindow() {
  if (m_previewWindow.isVisible() || m_previewWindow.isAnimating()) return;
  m_with.appWindow.makeRoomAtRight(previewPadding + m_with.previewPanel.paneWidth());
  m_previewWindow.show(m_with.appWindow, previewPadding);
}

bool WindowManager::isAuxiliaryWindowVisible() const {
  return m_with.settingsWindowController.window().isVisible() || m_with.gettingStartedWindow.isVisible() ||
         m_with.aboutWindow.isVisible() || m_with.updateWindow.isVisible();
}

void WindowManager::applicationDidResignActive() {
  if (!isAuxiliaryWindowVisible()) hideAppWindow();
}

bool WindowManager::handleAction(Action action, const KeyEvent& /*event*/) {
  switch (action) {
    case Action::dismiss:
      hideAppWindow();
      return true;
    case Action::openSettings:
      showSettingsWindow();
      return true;
    default:
      return false;
  }
}

}  // namespace quillmonger
