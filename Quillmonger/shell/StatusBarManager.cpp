#include "Quillmonger/shell/StatusBarManager.h"

#include "Foundation/Fatal.h"
#include "Quillmonger/input/KeyEvent.h"
#include "Quillmonger/settings/SettingsKeys.h"
#include "Quillmonger/shell/FallAndBounce.h"

namespace quillmonger {

namespace {

// Each is a picture that goes to another process: enough to look like a fall, few enough to cost nothing.
constexpr int frameCount = 12;

// Positions in the menu.
constexpr std::size_t updateMenuItem = 4;
constexpr std::size_t incognitoMenuItem = 7;

[[noreturn]] void stopWithoutItem() { foundation::stopProcess("The status item is used before it has been built."); }

}  // namespace

StatusBarManager::StatusBarManager(const Collaborators& collaborators)
    : m_with(collaborators),
      m_updaterBinding(
          m_with.updater.canCheckForUpdates().follow([this](bool canCheck) { m_canCheckForUpdates.set(canCheck); })),
      m_updateEntry(m_canCheckForUpdates.subscribe([this](bool) {
        if (m_statusBarItem) showMenu();
      })),
      m_itemCopied(m_with.notificationCenter.observe("ItemCopied", [this](const auto&) { animateStatusBarItem(); })) {}

void StatusBarManager::setup() {
  m_statusBarMenu = makeMenu();
  m_statusBarItem = m_with.statusBar.statusItem();
  showMenu();
  setIcon();
}

StatusMenu StatusBarManager::makeMenu() {
  using Kind = StatusMenuItem::Kind;
  using State = StatusMenuItem::State;
  const auto& text = m_with.texts;
  const StatusMenuItem separator{.kind = Kind::separator};
  return {
      {.title = text("status_bar_about_button"), .action = m_with.windows.showAboutWindow},
      separator,
      {.title = text("status_bar_toggle_button"), .action = m_with.windows.toggleAppWindow},
      {.title = text("status_bar_settings_button"), .action = m_with.windows.showSettingsWindow, .keyEquivalent = ","},
      {.title = text("status_bar_updates_button")},
      separator,
      {.kind = Kind::heading, .title = text("status_bar_history_literal")},
      {.title = text("status_bar_incognito_button"),
       .action = [this] { toggleIncognito(); },
       .state = m_with.defaults[keys::isIncognitoMode] ? State::on : State::off},
      separator,
      {.title = text("status_bar_quit_button"), .action = [this] { quitApp(); }, .keyEquivalent = "q"},
  };
}

std::vector<keyboardshortcuts::MenuItem> StatusBarManager::mainMenu() {
  std::vector<keyboardshortcuts::MenuItem> items;
  for (const StatusMenuItem& entry : makeMenu()) {
    auto& item = items.emplace_back();
    item.title = entry.title;
    item.keyEquivalent = entry.keyEquivalent;
    // The Control key is what menus here call Command.
    if (!entry.keyEquivalent.empty()) item.keyEquivalentModifierMask = controlFlag;
  }
  return items;
}

void StatusBarManager::toggleIncognito() {
  if (!m_statusBarItem) stopWithoutItem();
  using State = StatusMenuItem::State;
  auto& state = m_statusBarMenu[incognitoMenuItem].state;
  state = state == State::on ? State::off : State::on;
  m_with.defaults.set(keys::isIncognitoMode, state == State::on);
  showMenu();
  setIcon();
}

void StatusBarManager::checkForUpdates() {
  m_with.windows.hideAppWindow();
  m_with.updater.checkForUpdates();
}

void StatusBarManager::quitApp() { m_with.application.terminate(); }

void StatusBarManager::animateStatusBarItem() {
  if (!m_with.defaults[keys::animateMenuBar] || m_with.motion.reducesMotion() || !item().hasButton()) return;
  m_frame = 0;
  item().setImageOffset(fallandbounce::offset(0));
  m_fallAndBounce = m_with.runLoop.every(fallandbounce::duration / frameCount, [this] { showNextFrame(); });
}

void StatusBarManager::showNextFrame() {
  ++m_frame;
  item().setImageOffset(fallandbounce::offset(static_cast<double>(m_frame) / frameCount));
  if (m_frame == frameCount) m_fallAndBounce.cancel();
}

StatusItem& StatusBarManager::item() {
  if (!m_statusBarItem) stopWithoutItem();
  return *m_statusBarItem;
}

void StatusBarManager::showMenu() {
  auto& update = m_statusBarMenu[updateMenuItem];
  update.action = nullptr;
  if (m_canCheckForUpdates.value()) update.action = [this] { checkForUpdates(); };
  item().setMenu(m_statusBarMenu);
}

void StatusBarManager::setIcon() {
  if (!item().hasButton()) return;
  item().setImage(m_with.defaults[keys::isIncognitoMode] ? "MenuBarImageIncognito" : "MenuBarImage");
}

}  // namespace quillmonger
