#include "Quillmonger/resources/Appearance.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QPalette>
#include <QSignalSpy>

#include "Quillmonger/settings/SettingsKeys.h"
#include "tests/support/FakeDesktopPreferences.h"
#include "tests/support/TestDefaults.h"

namespace {

using quillmonger::Appearance;
using quillmonger::ColorScheme;
namespace keys = quillmonger::keys;

class AppearanceTest : public testing::Test {
 protected:
  AppearanceTest() {
    m_appearance.follow(m_desktop, [this] { return m_desktop.reducesMotion().value() || m_isStill; });
  }

  testsupport::TestDefaults m_defaults;
  testsupport::FakeDesktopPreferences m_desktop;
  bool m_isStill = false;
  Appearance m_appearance{m_defaults.defaults};
};

TEST_F(AppearanceTest, FollowsTheDesktopAsItChanges) {
  const QSignalSpy changes(&m_appearance, &Appearance::isDarkChanged);

  m_desktop.colorScheme().set(ColorScheme::dark);
  EXPECT_TRUE(m_appearance.isDark());

  m_desktop.colorScheme().set(ColorScheme::light);
  EXPECT_FALSE(m_appearance.isDark());
  EXPECT_EQ(changes.count(), 2);
}

TEST_F(AppearanceTest, PutsTheUsersChoiceAboveTheDesktops) {
  m_desktop.colorScheme().set(ColorScheme::dark);

  m_defaults.defaults.set<std::optional<ColorScheme>>(keys::selectedColorScheme, ColorScheme::light);
  EXPECT_FALSE(m_appearance.isDark());

  m_defaults.defaults.set<std::optional<ColorScheme>>(keys::selectedColorScheme, std::nullopt);
  EXPECT_TRUE(m_appearance.isDark());
}

TEST_F(AppearanceTest, FallsBackToTheToolkitsColours) {
  const QPalette before = QGuiApplication::palette();

  QGuiApplication::setPalette(QPalette(Qt::black));
  EXPECT_TRUE(m_appearance.isDark());

  QGuiApplication::setPalette(QPalette(Qt::white));
  EXPECT_FALSE(m_appearance.isDark());
  QGuiApplication::setPalette(before);
}

TEST_F(AppearanceTest, KeepsStillWhereTheDesktopReducesMotion) {
  const QSignalSpy changes(&m_appearance, &Appearance::reducesMotionChanged);
  EXPECT_FALSE(m_appearance.reducesMotion());

  m_desktop.reducesMotion().set(true);

  EXPECT_TRUE(m_appearance.reducesMotion());
  EXPECT_EQ(changes.count(), 1);
}

TEST_F(AppearanceTest, LooksWhetherMotionIsWantedWhenTheProgramComesToTheFront) {
  m_isStill = true;
  EXPECT_FALSE(m_appearance.reducesMotion());

  QEvent event(QEvent::ApplicationStateChange);
  QCoreApplication::sendEvent(qGuiApp, &event);

  EXPECT_TRUE(m_appearance.reducesMotion());
}

}  // namespace
