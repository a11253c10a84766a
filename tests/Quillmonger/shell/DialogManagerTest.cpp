#include "Quillmonger/shell/DialogManager.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/FakeAlert.h"

namespace {

using quillmonger::Alert;
using quillmonger::DialogManager;

class DialogManagerTest : public testing::Test {
 protected:
  void showWithAnswer(int answer) {
    testsupport::FakeAlert alert(answer);
    DialogManager manager(
        alert, [](std::string_view key) { return std::string(key) + " &?"; },
        [this](const foundation::Url& url) { opened.push_back(url.absoluteString()); }, "help@example.org");
    manager.showGenericErrorAlert();
    shown = alert.shown();
  }

  std::vector<Alert::Content> shown;
  std::vector<std::string> opened;
};

TEST_F(DialogManagerTest, ShowsOneAlertWithTheOneCode) {
  showWithAnswer(Alert::secondButton);

  ASSERT_EQ(shown.size(), 1U);
  EXPECT_EQ(shown[0].message, "error_alert_title &?");
  EXPECT_EQ(shown[0].informativeText, "error_alert_message &? ERR-001");
  EXPECT_EQ(shown[0].buttons, (std::vector<std::string>{"error_alert_email_support_button &?", "cancel_string &?"}));
}

TEST_F(DialogManagerTest, WritesToTheSupportForTheFirstButton) {
  showWithAnswer(Alert::firstButton);

  EXPECT_EQ(opened,
            std::vector<std::string>{"mailto:help@example.org?subject=error_alert_email_subject%20%26%3F%20ERR-001"});
}

TEST_F(DialogManagerTest, OpensNothingForAnyOtherAnswer) {
  showWithAnswer(Alert::secondButton);
  showWithAnswer(0);

  EXPECT_TRUE(opened.empty());
}

}  // namespace
