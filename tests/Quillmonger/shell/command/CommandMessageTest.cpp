#include "Quillmonger/shell/command/CommandMessage.h"

#include <gtest/gtest.h>

#include <random>
#include <utility>

namespace {

using namespace quillmonger;

std::string lineOf(CommandWords words) { return commandmessage::encode(CommandRequest{std::move(words), {}}); }

TEST(CommandMessage, GivesBackWords) {
  const CommandRequest request{{"defaults", "write", "", "a \"b\"\n\\ü"}, {}};

  const auto line = commandmessage::encode(request);

  EXPECT_EQ(line.find('\n'), std::string::npos);
  EXPECT_EQ(commandmessage::decodeRequest(line), request);
}

TEST(CommandMessage, GivesBackInputOfAnyBytes) {
  const CommandRequest request{{"copy"}, std::string("\x00\xff\n\x80", 4)};

  const auto line = commandmessage::encode(request);

  EXPECT_EQ(line.find('\n'), std::string::npos);
  EXPECT_EQ(commandmessage::decodeRequest(line), request);
}

TEST(CommandMessage, CarriesInputUpToItsLimit) {
  const CommandRequest request{{"copy"}, std::string(commandmessage::inputLimit, 'a')};

  EXPECT_EQ(commandmessage::decodeRequest(commandmessage::encode(request)), request);
}

TEST(CommandMessage, RefusesInputOverItsLimit) {
  const CommandRequest request{{"copy"}, std::string(commandmessage::inputLimit + 1, 'a')};

  EXPECT_FALSE(commandmessage::decodeRequest(commandmessage::encode(request)));
}

TEST(CommandMessage, GivesBackAResult) {
  const CommandResult result{1, "out\n", "error\n"};

  const auto line = commandmessage::encode(result);

  EXPECT_EQ(line.find('\n'), std::string::npos);
  EXPECT_EQ(commandmessage::decodeResult(line), result);
}

TEST(CommandMessage, CarriesWordsThatAreNoUtf8) {
  EXPECT_EQ(commandmessage::decodeRequest(lineOf({"\xff"})), (CommandRequest{{"\xEF\xBF\xBD"}, {}}));
}

TEST(CommandMessage, RefusesALineOverTheLimit) {
  EXPECT_FALSE(commandmessage::decodeRequest(lineOf({std::string(commandmessage::requestLimit, 'a')})));
}

TEST(CommandMessage, RefusesTooManyWords) {
  EXPECT_FALSE(commandmessage::decodeRequest(lineOf(CommandWords(1025, "a"))));
}

TEST(CommandMessage, RefusesDeepNesting) {
  EXPECT_FALSE(commandmessage::decodeRequest(std::string(1000000, '[')));
  EXPECT_FALSE(
      commandmessage::decodeRequest(R"({"words":[],"a":)" + std::string(1000, '[') + std::string(1000, ']') + "}"));
}

class MalformedWords : public testing::TestWithParam<const char*> {};
TEST_P(MalformedWords, AreRefused) { EXPECT_FALSE(commandmessage::decodeRequest(GetParam())); }
INSTANTIATE_TEST_SUITE_P(Lines, MalformedWords,
                         testing::Values("", "{", "[]", "7", "{}", R"({"words":"a"})", R"({"words":[1]})",
                                         R"({"words":[["a"]]})", R"({"words":[],"input":1})",
                                         R"({"words":[],"input":"?"})", R"({"words":[],"input":null})",
                                         "{\"words\":[\"\xff\"]}"));

class MalformedResult : public testing::TestWithParam<const char*> {};
TEST_P(MalformedResult, IsRefused) { EXPECT_FALSE(commandmessage::decodeResult(GetParam())); }
INSTANTIATE_TEST_SUITE_P(Lines, MalformedResult,
                         testing::Values("", "[]", "{}", R"({"exitCode":0,"output":""})",
                                         R"({"exitCode":-1,"output":"","errorOutput":""})",
                                         R"({"exitCode":256,"output":"","errorOutput":""})",
                                         R"({"exitCode":0,"output":1,"errorOutput":""})"));

TEST(CommandMessage, SurvivesRandomChanges) {
  std::mt19937 random(3);
  const std::string line = lineOf({"list", "--json"});

  for (int round = 0; round < 3000; ++round) {
    std::string changed = line;
    changed[random() % changed.size()] = static_cast<char>(random());
    const auto words = commandmessage::decodeRequest(changed);
    if (words.has_value()) {
      EXPECT_TRUE(commandmessage::decodeRequest(commandmessage::encode(*words)));
    }
  }
}

}  // namespace
