#include "Quillmonger/shell/OutsideOpening.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

#include "tests/support/FakeAlert.h"
#include "tests/support/VirtualRunLoop.h"

namespace {

using namespace std::chrono_literals;
using quillmonger::Alert;
using quillmonger::OutsideOpening;

class OutsideOpeningTest : public testing::Test {
 protected:
  explicit OutsideOpeningTest(int answer = Alert::secondButton) : alert(answer) {}

  const foundation::Url url = *foundation::Url::parse("https://quillmonger.example/privacy");
  bool canStart = true;
  std::vector<std::string> opened;
  OutsideOpening::Failed fail;
  std::vector<std::string> copies;
  testsupport::VirtualRunLoop runLoop;
  testsupport::FakeAlert alert;
  OutsideOpening opening{{[this](const foundation::Url& address, OutsideOpening::Failed failed) {
                            opened.push_back(address.absoluteString());
                            fail = std::move(failed);
                            return canStart;
                          },
                          alert, [](std::string_view key) { return std::string(key); }, runLoop,
                          [this](const std::string& text) { copies.push_back(text); }}};
};

TEST_F(OutsideOpeningTest, IsQuietWhenTheAddressIsOpened) {
  opening.open(url);

  EXPECT_EQ(opened, std::vector<std::string>{"https://quillmonger.example/privacy"});
  EXPECT_TRUE(alert.shown().empty());
}

TEST_F(OutsideOpeningTest, TellsTheAddressWhenTheOpenerIsAbsent) {
  canStart = false;

  opening.open(url);
  EXPECT_TRUE(alert.shown().empty());
  runLoop.runPosted();

  ASSERT_EQ(alert.shown().size(), 1U);
  EXPECT_EQ(alert.shown()[0].message, "open_failed_title");
  EXPECT_EQ(alert.shown()[0].informativeText, "open_failed_message\nhttps://quillmonger.example/privacy");
  EXPECT_EQ(alert.shown()[0].buttons, (std::vector<std::string>{"open_failed_copy_button", "confirm_string"}));
  EXPECT_TRUE(copies.empty());
}

TEST_F(OutsideOpeningTest, TellsTheAddressWhenTheOpenerFails) {
  opening.open(url);
  runLoop.advance(9s);

  fail();

  EXPECT_EQ(alert.shown().size(), 1U);
}

TEST_F(OutsideOpeningTest, TakesALateFailureForOneOfTheProgramThatHadOpenedIt) {
  opening.open(url);
  runLoop.advance(10s);

  fail();

  EXPECT_TRUE(alert.shown().empty());
}

TEST_F(OutsideOpeningTest, LeavesTheTellingToWhoeverWantsToHearOfIt) {
  int failures = 0;
  opening.open(url, [&failures] { ++failures; });
  EXPECT_EQ(failures, 0);
  fail();
  EXPECT_EQ(failures, 1);

  canStart = false;
  opening.open(url, [&failures] { ++failures; });
  runLoop.runPosted();

  EXPECT_EQ(failures, 2);
  EXPECT_TRUE(alert.shown().empty());
}

class OutsideOpeningCopyTest : public OutsideOpeningTest {
 protected:
  OutsideOpeningCopyTest() : OutsideOpeningTest(Alert::firstButton) {}
};

TEST_F(OutsideOpeningCopyTest, CopiesTheAddressForTheFirstButton) {
  canStart = false;

  opening.open(url);
  runLoop.runPosted();

  EXPECT_EQ(copies, std::vector<std::string>{"https://quillmonger.example/privacy"});
}

}  // namespace
