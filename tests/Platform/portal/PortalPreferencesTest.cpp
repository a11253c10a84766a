#include "Platform/portal/PortalPreferences.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTest>

#include "tests/Platform/portal/FakePortal.h"
#include "tests/Platform/portal/PrivateBus.h"

namespace {

using platform::PortalPreferences;
using quillmonger::ColorScheme;
using testsupport::FakePortal;

const QString appearance = QStringLiteral("org.freedesktop.appearance");
const QString colorScheme = QStringLiteral("color-scheme");
const QString desktopInterface = QStringLiteral("org.gnome.desktop.interface");
const QString animations = QStringLiteral("enable-animations");
constexpr uint none = 0;
constexpr uint dark = 1;
constexpr uint light = 2;

class PortalPreferencesTest : public testing::Test {
 protected:
  void setScheme(uint scheme) { m_portal.set(appearance, colorScheme, scheme); }

  testing::AssertionResult shows(PortalPreferences& preferences, std::optional<ColorScheme> scheme) {
    if (QTest::qWaitFor([&] { return preferences.colorScheme().value() == scheme; }))
      return testing::AssertionSuccess();
    return testing::AssertionFailure() << "the scheme did not come";
  }

  // Whatever the bus delivers in the order of its sending has been delivered.
  void settle(PortalPreferences& preferences) {
    // It asks again once it listens.
    ASSERT_TRUE(QTest::qWaitFor([this] { return m_portal.askedCount() > 1; }));
    const bool present = preferences.reducesMotion().value();
    m_portal.announce(desktopInterface, animations, present);

    ASSERT_TRUE(QTest::qWaitFor([&] { return preferences.reducesMotion().value() != present; }));
  }

  char m_name[5] = "test";
  char* m_arguments[2] = {m_name, nullptr};
  int m_argumentCount = 1;
  QCoreApplication m_application{m_argumentCount, m_arguments};
  testsupport::PrivateBus m_bus;
  FakePortal m_portal{m_bus.connection(QStringLiteral("portal"))};
  QDBusConnection m_connection = m_bus.connection(QStringLiteral("program"));
};

TEST_F(PortalPreferencesTest, SaysNothingWhereThereIsNoPortal) {
  PortalPreferences preferences(m_connection);

  EXPECT_EQ(preferences.colorScheme().value(), std::nullopt);
  EXPECT_FALSE(preferences.reducesMotion().value());
}

TEST_F(PortalPreferencesTest, SaysNothingWithoutABus) {
  PortalPreferences preferences{QDBusConnection(QStringLiteral("no such connection"))};

  EXPECT_EQ(preferences.colorScheme().value(), std::nullopt);
}

TEST_F(PortalPreferencesTest, TakesTheSchemeThatTheDesktopPrefers) {
  setScheme(dark);
  m_portal.appear();
  PortalPreferences preferences(m_connection);

  EXPECT_TRUE(shows(preferences, ColorScheme::dark));
}

TEST_F(PortalPreferencesTest, FollowsTheSchemeAsItChanges) {
  setScheme(dark);
  m_portal.appear();
  PortalPreferences preferences(m_connection);
  ASSERT_TRUE(shows(preferences, ColorScheme::dark));

  setScheme(light);
  EXPECT_TRUE(shows(preferences, ColorScheme::light));

  setScheme(none);
  EXPECT_TRUE(shows(preferences, std::nullopt));
}

TEST_F(PortalPreferencesTest, AsksAgainWhenAPortalComes) {
  PortalPreferences preferences(m_connection);
  setScheme(light);

  m_portal.appear();

  EXPECT_TRUE(shows(preferences, ColorScheme::light));
}

TEST_F(PortalPreferencesTest, ReducesMotionWhileAnimationsAreOff) {
  m_portal.set(desktopInterface, animations, false);
  m_portal.appear();
  PortalPreferences preferences(m_connection);
  EXPECT_TRUE(QTest::qWaitFor([&] { return preferences.reducesMotion().value(); }));

  m_portal.set(desktopInterface, animations, true);
  EXPECT_TRUE(QTest::qWaitFor([&] { return !preferences.reducesMotion().value(); }));
}

TEST_F(PortalPreferencesTest, TakesAValueThatIsWrappedTwice) {
  m_portal.set(appearance, colorScheme, QVariant::fromValue(QDBusVariant(dark)));
  m_portal.appear();
  PortalPreferences preferences(m_connection);

  EXPECT_TRUE(shows(preferences, ColorScheme::dark));
}

TEST_F(PortalPreferencesTest, HeedsNoAnswerOfAnotherType) {
  setScheme(dark);
  m_portal.answerWith(QStringLiteral("dark"));
  m_portal.appear();
  PortalPreferences preferences(m_connection);

  settle(preferences);

  EXPECT_EQ(preferences.colorScheme().value(), std::nullopt);
}

TEST_F(PortalPreferencesTest, HeedsNoSchemeOfAnotherTypeOrNumber) {
  m_portal.appear();
  PortalPreferences preferences(m_connection);
  for (const QVariant& scheme : {QVariant(QStringLiteral("1")), QVariant(1.0), QVariant(7U), QVariant(QStringList())}) {
    setScheme(dark);
    ASSERT_TRUE(shows(preferences, ColorScheme::dark));

    m_portal.set(appearance, colorScheme, scheme);

    EXPECT_TRUE(shows(preferences, std::nullopt));
  }
}

TEST_F(PortalPreferencesTest, HeedsNoOtherSettings) {
  setScheme(dark);
  m_portal.appear();
  PortalPreferences preferences(m_connection);
  ASSERT_TRUE(shows(preferences, ColorScheme::dark));

  m_portal.announce(appearance, QStringLiteral("accent-color"), light);
  m_portal.announce(desktopInterface, colorScheme, light);
  settle(preferences);

  EXPECT_EQ(preferences.colorScheme().value(), ColorScheme::dark);
}

}  // namespace
