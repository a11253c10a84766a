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

TEST(CommandMessage, GivesBackAResultOfAnyBytes) {
  const CommandResult result{1, std::string("out\n\x00\xff", 6), "error\n"};

  EXPECT_EQ(commandmessage::decodeResult(commandmessage::encode(result)), result);
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
INSTANTIATE_TEST_SUITE_P(Texts, MalformedResult,
                         testing::Values("", "0", "0 0", "0 0 0", "0 0\n", "{}\n", "-1 0 0\n", "256 0 0\n", "0 1 0\n",
                                         "0 0 1\n", "0 0 0\nx", "0 2 0\nx", "0  0 0\n", "0 18446744073709551615 1\n",
                                         "0 99999999999999999999 0\n", "0 1 18446744073709551615\nx"));

TEST(CommandMessage, RefusesAResultOverTheLimit) {
  const CommandResult result{0, std::string(commandmessage::resultLimit, 'a'), {}};

  EXPECT_FALSE(commandmessage::decodeResult(commandmessage::encode(result)));
}

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
