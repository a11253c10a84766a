#include "Quillmonger/settings/panes/HistoryClearing.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "tests/support/FakeAlertSheet.h"

namespace {

using Role = foundation::AlertSheet::Button::Role;
using Log = std::vector<std::string>;

class HistoryClearing : public testing::Test {
 protected:
  Log m_log;
  testsupport::FakeAlertSheet m_alert;
  foundation::NotificationCenter m_center;
  std::unique_ptr<quillmonger::HistoryClearing> m_clearing = std::make_unique<quillmonger::HistoryClearing>(
      quillmonger::HistoryClearing::Collaborators{m_alert, [](auto key) { return std::string(key); }, m_center,
                                                  [this] { m_log.emplace_back("deleteAllItems"); }, this});
  foundation::Subscription m_told = m_center.observe("HistoryCleared", [this](const auto& told) {
    m_log.emplace_back(told.object == this ? "HistoryCleared of the root" : "HistoryCleared of another");
  });
};

TEST_F(HistoryClearing, AsksFirst) {
  m_clearing->ask();

  EXPECT_EQ(m_alert.shown(), (std::vector<foundation::AlertSheet::Content>{
                                 {"settings_clipboard_clear_history_alert_title",
                                  "settings_clipboard_clear_history_alert_message",
                                  {{"clear_string", Role::destructive}, {"cancel_string", Role::cancel}}}}));
  EXPECT_EQ(m_log, Log{});
}

TEST_F(HistoryClearing, ClearsAndTellsItOnConfirmation) {
  m_clearing->ask();

  m_alert.answer(0);

  EXPECT_EQ(m_log, (Log{"deleteAllItems", "HistoryCleared of the root"}));
}

TEST_F(HistoryClearing, ChangesNothingWhenItIsCancelled) {
  m_clearing->ask();

  m_alert.cancel();

  EXPECT_EQ(m_log, Log{});
}

TEST_F(HistoryClearing, ChangesNothingOnceItHasGone) {
  m_clearing->ask();
  m_clearing.reset();

  m_alert.answer(0);

  EXPECT_EQ(m_log, Log{});
}

}  // namespace
