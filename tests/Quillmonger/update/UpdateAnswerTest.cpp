#include "Quillmonger/update/UpdateAnswer.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "tests/support/FakeUpdateService.h"

namespace {

using quillmonger::Update;
namespace updateanswer = quillmonger::updateanswer;

TEST(UpdateAnswer, BringsAnUpdateOver) {
  auto update = testsupport::updateTo("2.0-rc.1");
  update.notes = "Two\nlines, ünd more\n";

  EXPECT_EQ(updateanswer::decode(updateanswer::encode(update)), std::optional(std::optional(update)));
}

TEST(UpdateAnswer, BringsOverThatThereIsNone) {
  const auto answer = updateanswer::decode(updateanswer::encode(std::nullopt));

  ASSERT_TRUE(answer.has_value());
  EXPECT_FALSE(answer->has_value());
}

class BadUpdateAnswer : public testing::TestWithParam<const char*> {};

TEST_P(BadUpdateAnswer, IsNoAnswer) { EXPECT_FALSE(updateanswer::decode(GetParam()).has_value()); }

INSTANTIATE_TEST_SUITE_P(Of, BadUpdateAnswer,
                         testing::Values("", "none", "none\nmore", "update\n", "update\n2.0\nhttps://a/\n12\n",
                                         "update\n2.0\nhttps://a/\ntwelve\nabc\n",
                                         "update\n2.0\nhttps://a/\n12x\nabc\n", "update\n2.0\nno url\n12\nabc\n",
                                         "update\n2.0\nhttps://a/\n99999999999999999999\nabc\n"));

class UnusableUpdate : public testing::TestWithParam<std::function<void(Update&)>> {};

TEST_P(UnusableUpdate, IsNoAnswer) {
  auto update = testsupport::updateTo("2.0");
  ASSERT_TRUE(updateanswer::decode(updateanswer::encode(update)).has_value());

  GetParam()(update);

  EXPECT_FALSE(updateanswer::decode(updateanswer::encode(update)).has_value());
}

INSTANTIATE_TEST_SUITE_P(
    With, UnusableUpdate,
    testing::Values([](Update& update) { update.url = *foundation::Url::parse("http://example.org/2.0.deb"); },
                    [](Update& update) { update.url = *foundation::Url::parse("file:///etc/passwd"); },
                    [](Update& update) {
                      update.url = *foundation::Url::parse("https://a/" + std::string(Update::addressLimit, 'x'));
                    },
                    [](Update& update) { update.sha256.pop_back(); }, [](Update& update) { update.sha256[5] = 'G'; },
                    [](Update& update) { update.length = 0; },
                    [](Update& update) { update.length = Update::lengthLimit + 1; },
                    [](Update& update) { update.version = "../../2.0"; },
                    [](Update& update) { update.version.clear(); }));

TEST(UpdateAnswer, SaysByTheExitCodeWhyThereIsNone) {
  using quillmonger::UpdateFailure;
  for (const auto failure : {UpdateFailure::unreachable, UpdateFailure::untrusted, UpdateFailure::damaged,
                             UpdateFailure::notWritten, UpdateFailure::notOpened})
    EXPECT_EQ(updateanswer::failureOf(updateanswer::exitCode(failure)), failure);
  for (const int code : {0, 1, 2, 9, 15, 127, -1})
    EXPECT_EQ(updateanswer::failureOf(code), UpdateFailure::unreachable) << code;
}

TEST(UpdateAnswer, IsNoneWhenItIsTooLong) {
  auto update = testsupport::updateTo("2.0");
  update.notes = std::string(updateanswer::sizeLimit, 'x');

  EXPECT_FALSE(updateanswer::decode(updateanswer::encode(update)).has_value());
}

}  // namespace
