#include "Platform/x11/X11InputSources.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "Foundation/NotificationCenter.h"
#include "Sauce/Sauce.h"
#include "tests/support/ChildProcess.h"
#include "tests/support/PrivateDisplay.h"
#include "tests/support/RealRunLoop.h"
#include "tests/support/x11/KeyboardClient.h"

namespace {

using sauce::Key;

class X11InputSources : public testing::Test {
 protected:
  X11InputSources() : m_user(m_display.name()) {
    for (const char* name : {"SauceSelectedKeyboardInputSourceChanged", "SauceEnabledKeyboardInputSourcesChanged",
                             "SauceSelectedKeyboardKeyCodesChanged"}) {
      m_observations.push_back(m_notificationCenter.observe(
          name, [this](const foundation::Notification& notification) { m_posted.push_back(notification.name); }));
    }
  }

  void run(std::vector<std::string> arguments) {
    testsupport::ChildProcess child(std::move(arguments), {m_display.environment()});
    ASSERT_TRUE(m_runLoop.runUntil([&child] { return child.isFinished(); }));
    ASSERT_EQ(child.exitCode(), 0);
  }
  void setLayouts(const std::string& layouts, const std::string& variants = {}) {
    run({"setxkbmap", "-layout", layouts, "-variant", variants});
  }
  void start() {
    m_sources = platform::X11InputSources::connect(m_runLoop, m_display.name());
    ASSERT_TRUE(m_sources);
    m_sauce = std::make_unique<sauce::Sauce>(*m_sources, m_notificationCenter);
  }

  [[nodiscard]] std::string selected() const { return m_sauce->layout().currentKeyboardLayoutInputSource().id; }
  [[nodiscard]] std::vector<std::string> enabled() const {
    std::vector<std::string> identifiers;
    for (const sauce::InputSource& source : m_sauce->layout().inputSources())
      identifiers.push_back(source.id);
    return identifiers;
  }
  // Each of them once the server's events are through.
  [[nodiscard]] bool becomes(const std::string& identifier) {
    return m_runLoop.runUntil([&] { return selected() == identifier; });
  }
  [[nodiscard]] bool enables(const std::vector<std::string>& identifiers) {
    return m_runLoop.runUntil([&] { return enabled() == identifiers; });
  }
  [[nodiscard]] bool isPosted(const std::string& name) const { return std::ranges::count(m_posted, name) > 0; }

  using Posted = std::vector<std::string>;
  testsupport::PrivateDisplay m_display;
  testsupport::RealRunLoop m_runLoop;
  testsupport::KeyboardClient m_user;
  foundation::NotificationCenter m_notificationCenter;
  Posted m_posted;
  std::vector<foundation::Subscription> m_observations;
  std::unique_ptr<platform::X11InputSources> m_sources;
  std::unique_ptr<sauce::Sauce> m_sauce;
};

TEST_F(X11InputSources, AreTheLayoutsOfTheRunningServer) {
  setLayouts("us,de,ru", ",nodeadkeys,");
  start();

  EXPECT_EQ(enabled(), (std::vector<std::string>{"us", "de(nodeadkeys)", "ru"}));
  EXPECT_EQ(selected(), "us");
  EXPECT_EQ(m_sauce->layout().currentKeyboardLayoutInputSource().localizedName, "English (US)");
  EXPECT_EQ(m_sauce->keyCode(Key::z), 6);
  EXPECT_EQ(m_sauce->keyCode(sauce::InputSource("de(nodeadkeys)"), Key::z), 16);
}

TEST_F(X11InputSources, StartWithTheGroupThatIsInUse) {
  setLayouts("us,ru");
  m_user.lockGroup(1);
  start();

  EXPECT_EQ(selected(), "ru");
  EXPECT_EQ(m_sauce->layout().currentASCIICapableInputSource().id, "us");
}

TEST_F(X11InputSources, FollowTheServerFromLayoutToLayout) {
  setLayouts("us");
  start();
  ASSERT_EQ(m_sauce->keyCode(Key::a), 0);

  setLayouts("fr");
  ASSERT_TRUE(becomes("fr"));
  ASSERT_TRUE(enables({"fr"}));
  EXPECT_EQ(m_sauce->keyCode(Key::a), 12);
  EXPECT_EQ(m_sauce->keyCode(Key::v), 9);

  setLayouts("us", "dvorak");
  ASSERT_TRUE(becomes("us(dvorak)"));
  ASSERT_TRUE(enables({"us(dvorak)"}));
  EXPECT_EQ(m_sauce->keyCode(Key::v), 47);

  setLayouts("ru");
  ASSERT_TRUE(becomes("ru"));
  ASSERT_TRUE(enables({"ru"}));
  EXPECT_EQ(m_sauce->keyCode(Key::v), std::nullopt);
  EXPECT_EQ(m_sauce->layout().currentASCIICapableInputSource().id, "us");
  EXPECT_TRUE(isPosted("SauceSelectedKeyboardInputSourceChanged"));
  EXPECT_TRUE(isPosted("SauceEnabledKeyboardInputSourcesChanged"));
}

TEST_F(X11InputSources, TellASwitchOfTheGroup) {
  setLayouts("us,ru");
  start();

  m_user.lockGroup(1);

  ASSERT_TRUE(becomes("ru"));
  EXPECT_EQ(m_posted, (Posted{"SauceSelectedKeyboardInputSourceChanged", "SauceSelectedKeyboardKeyCodesChanged"}));
  EXPECT_EQ(m_sauce->keyCode(Key::v), std::nullopt);
  EXPECT_EQ(m_sauce->layout().currentASCIICapableInputSource().id, "us");

  m_user.lockGroup(0);

  ASSERT_TRUE(becomes("us"));
  EXPECT_EQ(m_sauce->keyCode(Key::v), 9);
}

TEST_F(X11InputSources, TellNothingOfKeysAndModifiersThatArePressed) {
  setLayouts("us,ru");
  start();
  constexpr std::uint32_t evdevShift = 42;
  constexpr std::uint32_t evdevCapsLock = 58;

  m_user.tap(evdevShift);
  m_user.tap(evdevCapsLock);
  m_user.lockGroup(1);

  ASSERT_TRUE(becomes("ru"));
  EXPECT_EQ(m_posted.size(), 2U);
}

TEST_F(X11InputSources, TellALayoutThatJoins) {
  setLayouts("us");
  start();

  setLayouts("us,fr");

  ASSERT_TRUE(enables({"us", "fr"}));
  EXPECT_EQ(selected(), "us");
  EXPECT_FALSE(isPosted("SauceSelectedKeyboardKeyCodesChanged"));
  EXPECT_EQ(m_sauce->keyCode(sauce::InputSource("fr"), Key::a), 12);
}

TEST_F(X11InputSources, MapAKeyAnewThatTheUserRedefines) {
  setLayouts("us");
  start();
  ASSERT_EQ(m_sauce->keyCode(Key::x), 7);

  run({"xmodmap", "-e", "keycode 38 = x X"});

  EXPECT_TRUE(m_runLoop.runUntil([this] { return m_sauce->keyCode(Key::x) == 0; }));
  EXPECT_EQ(m_posted, Posted{"SauceEnabledKeyboardInputSourcesChanged"});
}

TEST_F(X11InputSources, AreCalledByTheirOwnNamesWhenTheServersNamesMakeNoSense) {
  setLayouts("us,ru");
  run({"xprop", "-root", "-f", "_XKB_RULES_NAMES", "8s", "-set", "_XKB_RULES_NAMES", "rubbish"});
  start();

  EXPECT_EQ(enabled(), (std::vector<std::string>{"English (US)", "Russian"}));
  EXPECT_EQ(m_sauce->keyCode(Key::v), 9);
}

TEST_F(X11InputSources, FollowNamesThatChangeAlone) {
  setLayouts("us");
  start();

  run({"xprop", "-root", "-remove", "_XKB_RULES_NAMES"});

  EXPECT_TRUE(enables({"English (US)"}));
  EXPECT_TRUE(becomes("English (US)"));
}

TEST_F(X11InputSources, KeepTheLastLayoutWhenTheServerGoes) {
  auto display = std::make_unique<testsupport::PrivateDisplay>();
  const auto sources = platform::X11InputSources::connect(m_runLoop, display->name());
  ASSERT_TRUE(sources);
  const auto before = sources->currentKeyboardLayoutInputSource();

  display.reset();

  EXPECT_TRUE(before);
  EXPECT_EQ(sources->currentKeyboardLayoutInputSource(), before);
  EXPECT_EQ(sources->translate(*before, 9, 0), "v");
}

TEST_F(X11InputSources, AreAbsentWithoutAnXServer) {
  EXPECT_EQ(platform::X11InputSources::connect(m_runLoop, "/nowhere:0"), nullptr);
}

}  // namespace
