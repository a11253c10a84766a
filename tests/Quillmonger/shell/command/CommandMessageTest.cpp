#include "Quillmonger/shell/command/CommandMessage.h"

#include <gtest/gtest.h>

#include <random>

namespace {

using namespace quillmonger;

TEST(CommandMessage, GivesBackWords) {
  const CommandWords words{"defaults", "write", "", "a \"b\"\n\\ü"};

  const auto line = commandmessage::encode(words);

  EXPECT_EQ(line.find('\n'), std::string::npos);
  EXPECT_EQ(commandmessage::decodeWords(line), words);
}

TEST(CommandMessage, GivesBackAResult) {
  const CommandResult result{1, "out\n", "error\n"};

  const auto line = commandmessage::encode(result);

  EXPECT_EQ(line.find('\n'), std::string::npos);
  EXPECT_EQ(commandmessage::decodeResult(line), result);
}

TEST(CommandMessage, CarriesWordsThatAreNoUtf8) {
  EXPECT_EQ(commandmessage::decodeWords(commandmessage::encode(CommandWords{"\xff"})), CommandWords{"\xEF\xBF\xBD"});
}

TEST(CommandMessage, RefusesALineOverTheLimit) {
  EXPECT_FALSE(commandmessage::decodeWords(
      commandmessage::encode(CommandWords{std::string(commandmessage::requestLimit, 'a')})));
}

TEST(CommandMessage, RefusesTooManyWords) {
  EXPECT_FALSE(commandmessage::decodeWords(commandmessage::encode(CommandWords(1025, "a"))));
}

TEST(CommandMessage, RefusesDeepNesting) {
  EXPECT_FALSE(commandmessage::decodeWords(std::string(1000000, '[')));
  EXPECT_FALSE(
      commandmessage::decodeWords(R"({"words":[],"a":)" + std::string(1000, '[') + std::string(1000, ']') + "}"));
}

class MalformedWords : public testing::TestWithParam<const char*> {};
TEST_P(MalformedWords, AreRefused) { EXPECT_FALSE(commandmessage::decodeWords(GetParam())); }
INSTANTIATE_TEST_SUITE_P(Lines, MalformedWords,
                         testing::Values("", "{", "[]", "7", "{}", R"({"words":"a"})", R"({"words":[1]})",
                                         R"({"words":[["a"]]})", "{\"words\":[\"\xff\"]}"));

class MalformedResult : public testing::TestWithParam<const char*> {};
TEST_P(MalformedResult, IsRefused) { EXPECT_FALSE(commandmessage::decodeResult(GetParam())); }
INSTANTIATE_TEST_SUITE_P(Lines, MalformedResult,
                         testing::Values("", "[]", "{}", R"({"exitCode":0,"output":""})",
                                         R"({"exitCode":-1,"output":"","errorOutput":""})",
                                         R"({"exitCode":256,"output":"","errorOutput":""})",
                                         R"({"exitCode":0,"output":1,"errorOutput":""})"));

TEST(CommandMessage, SurvivesRandomChanges) {
  std::mt19937 random(3);
  const std::string line = commandmessage::encode(CommandWords{"list", "--json"});

  for (int round = 0; round < 3000; ++round) {
    std::string changed = line;
    changed[random() % changed.size()] = static_cast<char>(random());
    const auto words = commandmessage::decodeWords(changed);
    if (words.has_value()) {
      EXPECT_TRUE(commandmessage::decodeWords(commandmessage::encode(*words)));
    }
  }
}

}  // namespace
