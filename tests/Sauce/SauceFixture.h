#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "Foundation/NotificationCenter.h"
#include "Foundation/Subscription.h"
#include "Sauce/InputSource.h"
#include "tests/support/FakeInputSourceService.h"

namespace sauce {

/// A desktop with three enabled sources, of which "us" is selected: "us" and "fr" are layouts, "hangul" is an input
/// method, which doesn't say what its keys type.
class SauceFixture : public testing::Test {
 protected:
  SauceFixture() {
    m_service.setTexts(m_us, {{0, "a"}, {9, "v"}, {12, "q"}, {18, "1"}, {83, "1"}});
    m_service.setTexts(m_french, {{0, "q"}, {9, "v"}, {12, "a"}, {18, "&"}, {83, "1"}});
    m_service.setEnabled({m_us, m_french, m_hangul});
    m_service.setSelected(m_us);
    m_service.setASCIICapable(m_us);
    for (const char* name : {"SauceSelectedKeyboardInputSourceChanged", "SauceEnabledKeyboardInputSourcesChanged",
                             "SauceSelectedKeyboardKeyCodesChanged"}) {
      m_observations.push_back(m_notificationCenter.observe(name, [this](const foundation::Notification& notification) {
        EXPECT_EQ(notification.object, nullptr);
        m_posted.push_back(notification.name);
      }));
    }
  }

  void select(const InputSource& source) {
    m_service.setSelected(source);
    m_service.tellSelectedChanged();
  }

  using Posted = std::vector<std::string>;
  const InputSource m_us{"us"};
  const InputSource m_french{"fr"};
  const InputSource m_hangul{"hangul"};
  testsupport::FakeInputSourceService m_service;
  foundation::NotificationCenter m_notificationCenter;
  Posted m_posted;

 private:
  std::vector<foundation::Subscription> m_observations;
};

}  // namespace sauce
