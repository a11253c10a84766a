#include "Quillmonger/shell/WindowManager.h"

namespace quillmonger {

WindowManager::WindowManager(const Collaborators& collaborators)
    : BaseEventManager(collaborators.eventMonitoring), m_with(collaborators) {}

void WindowManager::toggleAppWindow() {
  if (m_with.appWindow.isVisible()) {
    hideAppWindow();
  } else {
    showAppWindow();
  }
}

void WindowManager::showAppWindow() {
  if (m_with.appWindow.isVisible()) return;
  m_with.settingsWindow.orderOut();
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
  m_with.appWindow.orderOut();
  m_with.application.hide();
}

void WindowManager::showSettingsWindow() {
  m_with.appWindow.orderOut();
  m_with.application.activateIgnoringOtherApps();
  if (!m_with.settingsWindow.isVisible()) m_with.settingsWindow.center();
  m_with.settingsWindow.makeKeyAndOrderFront();
}

void WindowManager::showGettingStartedWindow() {
  m_with.gettingStartedWindow.center();
  m_with.gettingStartedWindow.makeKeyAndOrderFront();
}

void WindowManager::hideGettingStartedWindow() { m_with.gettingStartedWindow.orderOut(); }

bool WindowManager::isAuxiliaryWindowVisible() const {
  return m_with.settingsWindow.isVisible() || m_with.gettingStartedWindow.isVisible();
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
