#pragma once

#include <gtest/gtest.h>

#include <QTest>
#include <string>

#include "tests/gallery/SettingsStage.h"

namespace testsupport {

/// A pane of the settings' window, used as its user does.
class SettingsPaneTest : public testing::Test {
 protected:
  explicit SettingsPaneTest(const char* pane) : m_pane(pane) {}

  QQuickView& view() { return m_stage.pane(m_pane); }
  defaults::Defaults& settings() { return m_stage.defaults(); }
  QQuickItem* item(const std::string& identifier) { return find(view(), QString::fromStdString(identifier)); }
  void activate() {
    view().requestActivate();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&view()));
  }
  void click(const std::string& identifier) {
    const QQuickItem* on = item(identifier);
    ASSERT_NE(on, nullptr) << identifier;
    QTest::mouseClick(&view(), Qt::LeftButton, {}, on->mapToScene(on->boundingRect().center()).toPoint());
  }
  void clickAt(const std::string& identifier, double share) {
    const QQuickItem* on = item(identifier);
    QTest::mouseClick(&view(), Qt::LeftButton, {},
                      on->mapToScene(QPointF((on->width() - 1) * share, on->height() / 2)).toPoint());
  }
  void focus(const std::string& identifier) {
    activate();
    item(identifier)->forceActiveFocus(Qt::TabFocusReason);
  }
  void press(Qt::Key key) { QTest::keyClick(&view(), key); }

  const char* m_pane;
  SettingsStage m_stage;
};

}  // namespace testsupport
