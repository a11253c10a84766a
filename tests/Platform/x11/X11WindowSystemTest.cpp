#include "Platform/x11/X11WindowSystem.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <memory>
#include <optional>
#include <string>

#include "tests/support/ChildProcess.h"
#include "tests/support/PrivateDisplay.h"
#include "tests/support/RealRunLoop.h"
#include "tests/support/x11/KeyboardClient.h"

namespace {

using testsupport::ChildProcess;
using testsupport::KeyboardClient;

// What a settings service tells of animations alone, the least significant byte first.
std::string settingsWithAnimations(char isOn) {
  std::string settings(12, '\0');
  settings[8] = 1;
  settings += std::string("\0\0\x14\0", 4) + "Gtk/EnableAnimations" + std::string(4, '\0');
  return settings + isOn + std::string(3, '\0');
}

class X11WindowSystem : public testing::Test {
 protected:
  testsupport::PrivateDisplay m_display;
  testsupport::RealRunLoop m_runLoop;
  KeyboardClient m_first{m_display.name()};
  KeyboardClient m_second{m_display.name()};
  std::unique_ptr<platform::X11WindowSystem> m_system = platform::X11WindowSystem::connect(m_display.name());
};

TEST_F(X11WindowSystem, BlendsNothingWithoutACompositor) { EXPECT_FALSE(m_system->blendsTransparency()); }

TEST_F(X11WindowSystem, SoundsTheBell) {
  m_first.listenToTheBell();
  EXPECT_FALSE(m_first.heardTheBell());

  m_system->beep();

  EXPECT_TRUE(m_runLoop.runUntil([this] { return m_first.heardTheBell(); }));
}

TEST_F(X11WindowSystem, GivesAWindowTheKeyboardWithoutAWindowManager) {
  m_first.showWindow();

  m_system->bringToFront(m_first.window());

  EXPECT_TRUE(m_runLoop.runUntil([this] { return m_first.focus() == m_first.window(); }));
}

TEST_F(X11WindowSystem, BringsAWindowToTheFrontPastAWindowManager) {
  ChildProcess manager({"openbox"}, {m_display.environment()});
  ASSERT_TRUE(m_runLoop.runUntil([this] { return m_first.isUnderWindowManager(); }));
  m_first.showWindow();
  m_second.showWindow();
  // Until the manager has both windows and is ready, it may leave a request aside.
  ASSERT_TRUE(m_runLoop.runUntil([this] {
    m_system->bringToFront(m_second.window());
    return m_second.focus() == m_second.window();
  }));

  m_system->bringToFront(m_first.window());

  EXPECT_TRUE(m_runLoop.runUntil([this] { return m_first.focus() == m_first.window(); }));
  manager.end(SIGTERM);
}

TEST_F(X11WindowSystem, KeepsAWindowOutOfTheTaskListOnce) {
  m_system->keepOutOfTaskList(m_first.window());
  m_system->keepOutOfTaskList(m_first.window());

  auto states = m_first.windowAtoms("_NET_WM_STATE");
  EXPECT_EQ(std::ranges::count(states, m_first.atom("_NET_WM_STATE_SKIP_TASKBAR")), 1);
  EXPECT_EQ(std::ranges::count(states, m_first.atom("_NET_WM_STATE_SKIP_PAGER")), 1);
}

TEST_F(X11WindowSystem, KnowsTheMiddleOfTheWindowThatHasTheKeyboard) {
  EXPECT_EQ(m_system->focusedWindowCentre(), std::nullopt) << "nobody says which one it is";
  m_first.moveWindow(200, 100);

  m_first.claimActive();

  EXPECT_EQ(m_system->focusedWindowCentre(), (quillmonger::WindowSystem::Pixel{250, 150}));
}

TEST_F(X11WindowSystem, TakesTheDesktopForNoFocusedWindow) {
  m_first.setWindowAtom("_NET_WM_WINDOW_TYPE", "_NET_WM_WINDOW_TYPE_DESKTOP");
  m_first.claimActive();

  EXPECT_EQ(m_system->focusedWindowCentre(), std::nullopt);
}

TEST_F(X11WindowSystem, ReducesMotionAsTheDesktopsSettingsSay) {
  EXPECT_FALSE(m_system->reducesMotion()) << "without a service";
  m_first.serveSettings(settingsWithAnimations(1));
  EXPECT_FALSE(m_system->reducesMotion());

  m_first.serveSettings(settingsWithAnimations(0));
  EXPECT_TRUE(m_system->reducesMotion());
}

TEST_F(X11WindowSystem, IsAbsentWithoutAnXServer) {
  EXPECT_EQ(platform::X11WindowSystem::connect("/nowhere:0"), nullptr);
}

}  // namespace
