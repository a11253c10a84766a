#include "Quillmonger/shell/command/CommandLine.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "Quillmonger/settings/SettingsKeys.h"
#include "tests/support/VirtualRunLoop.h"

namespace {

using namespace quillmonger;
using foundation::Data;

std::shared_ptr<ClipboardItem> textItem(const std::string& text, std::optional<std::string> source = std::nullopt) {
  Payload payload;
  payload.emplace("public.utf8-plain-text", Data(text));
  return std::make_shared<ClipboardItem>(std::move(payload), std::move(source), std::nullopt,
                                         testsupport::VirtualRunLoop::startDate());
}

class CommandLineTest : public testing::Test {
 protected:
  std::vector<std::string> called;
  std::vector<std::shared_ptr<ClipboardItem>> records;
  defaults::UserDefaults store;
  defaults::Defaults settings{store};
  CommandLine commandLine{{[this] { called.emplace_back("toggle"); }, [this] { called.emplace_back("show"); },
                           [this] { called.emplace_back("settings"); }, [this] { called.emplace_back("about"); },
                           [this](const std::vector<std::string>& urls) { called = urls; },
                           [this] { called.emplace_back("quit"); }, [this] { return records; }},
                          settings};

  nlohmann::json listed() { return nlohmann::json::parse(commandLine.run({"list", "--json"}).output); }
};

TEST_F(CommandLineTest, CarriesOutTheWindowCommands) {
  for (const char* word : {"toggle", "show", "settings", "about", "quit"})
    EXPECT_EQ(commandLine.run({word}), CommandResult()) << word;

  EXPECT_EQ(called, (std::vector<std::string>{"toggle", "show", "settings", "about", "quit"}));
}

TEST_F(CommandLineTest, HandsOnUrls) {
  EXPECT_EQ(commandLine.run({"quillmonger://a", "https://b"}), CommandResult());

  EXPECT_EQ(called, (std::vector<std::string>{"quillmonger://a", "https://b"}));
}

TEST_F(CommandLineTest, ShowsWithoutWords) {
  EXPECT_EQ(commandLine.run(CommandWords()), CommandResult());

  EXPECT_EQ(called, std::vector<std::string>{"show"});
}

TEST_F(CommandLineTest, PrintsALineForEachRecordNewestFirst) {
  records = {textItem("new", "org.example.Editor"), textItem("old")};

  EXPECT_EQ(commandLine.run({"list"}).output,
            "2026-01-01T12:00:00Z  3  org.example.Editor  new\n"
            "2026-01-01T12:00:00Z  3  -  old\n");
}

TEST_F(CommandLineTest, KeepsLineEndsAndTerminalCodesOutOfTheLines) {
  records = {
      textItem("a\nb\x1b[31mc\xC2\x9B"
               "d")};

  const auto output = commandLine.run({"list"}).output;

  EXPECT_EQ(output, "2026-01-01T12:00:00Z  12  -  a b [31mc d\n");
}

TEST_F(CommandLineTest, ListsAsJson) {
  records = {textItem("text", "org.example.Editor")};

  const auto list = listed();

  ASSERT_EQ(list.size(), 1U);
  EXPECT_EQ(list[0]["id"], records[0]->id().toString());
  EXPECT_EQ(list[0]["creationDate"], "2026-01-01T12:00:00Z");
  EXPECT_EQ(list[0]["sourceAppBundleIdentifier"], "org.example.Editor");
  EXPECT_EQ(list[0]["types"], nlohmann::json({"public.utf8-plain-text"}));
  EXPECT_EQ(list[0]["size"], 4);
  EXPECT_EQ(list[0]["timesPasted"], 0);
  EXPECT_EQ(list[0]["text"], "text");
}

TEST_F(CommandLineTest, ListsAnEmptyHistoryAsAnEmptyList) {
  EXPECT_EQ(commandLine.run({"list", "--json"}).output, "[]\n");
  EXPECT_EQ(commandLine.run({"list"}).output, "");
}

TEST_F(CommandLineTest, ListsNullForWhatARecordDoesNotHave) {
  Payload payload;
  payload.emplace("public.png", Data("png"));
  records = {std::make_shared<ClipboardItem>(std::move(payload), std::nullopt, std::nullopt, foundation::Date())};

  EXPECT_TRUE(listed()[0]["text"].is_null());
  EXPECT_TRUE(listed()[0]["sourceAppBundleIdentifier"].is_null());
}

TEST_F(CommandLineTest, CutsTextAfterAThousandCharacters) {
  std::string text;
  for (int count = 0; count < 3000; ++count)
    text += "\xF0\x9F\x98\x80";
  records = {textItem(text)};

  EXPECT_EQ(listed()[0]["text"].get<std::string>().size(), 4000U);
}

TEST_F(CommandLineTest, MendsTextThatIsNoUtf8) {
  records = {textItem("a\xff")};

  EXPECT_EQ(listed()[0]["text"], "a\xEF\xBF\xBD");
}

TEST_F(CommandLineTest, ReadsWritesAndDeletesSettings) {
  EXPECT_EQ(commandLine.run({"defaults", "write", "historySize", "200"}), CommandResult());
  EXPECT_EQ(settings[keys::historySize], 200);
  EXPECT_EQ(commandLine.run({"defaults", "read", "historySize"}).output, "200\n");

  EXPECT_EQ(commandLine.run({"defaults", "delete", "historySize"}), CommandResult());
  EXPECT_EQ(commandLine.run({"defaults", "read", "historySize"}).output, "10\n");
}

TEST_F(CommandLineTest, ReadsAllSettingsWithoutAName) {
  const auto output = commandLine.run({"defaults", "read"}).output;

  EXPECT_EQ(std::count(output.begin(), output.end(), '\n'), 29);
  EXPECT_NE(output.find("soundVolume = 0.45\n"), std::string::npos);
}

TEST_F(CommandLineTest, FailsWith1ForAnUnknownSetting) {
  const auto result = commandLine.run({"defaults", "read", "nothing"});

  EXPECT_EQ(result.exitCode, 1);
  EXPECT_NE(result.errorOutput.find("nothing"), std::string::npos);
}

class Misuse : public CommandLineTest, public testing::WithParamInterface<CommandWords> {};

TEST_P(Misuse, FailsWith2AndTheUsage) {
  const auto result = commandLine.run(GetParam());

  EXPECT_EQ(result.exitCode, 2);
  EXPECT_EQ(result.output, "");
  EXPECT_NE(result.errorOutput.find("usage: quillmonger"), std::string::npos);
  EXPECT_TRUE(called.empty());
}

INSTANTIATE_TEST_SUITE_P(Words, Misuse,
                         testing::Values(CommandWords{"tickle"}, CommandWords{""}, CommandWords{"toggle", "now"},
                                         CommandWords{"toggle", "--json"}, CommandWords{"list", "--xml"},
                                         CommandWords{"defaults"}, CommandWords{"defaults", "erase"},
                                         CommandWords{"defaults", "write", "historySize"},
                                         CommandWords{"defaults", "delete"}, CommandWords{"--verbose"}));

class Help : public CommandLineTest, public testing::WithParamInterface<CommandWords> {};

TEST_P(Help, IsPrintedAndNothingIsDone) {
  const auto result = commandLine.run(GetParam());

  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.output.rfind("usage: quillmonger", 0), 0U);
  EXPECT_TRUE(called.empty());
}

INSTANTIATE_TEST_SUITE_P(Words, Help,
                         testing::Values(CommandWords{"--help"}, CommandWords{"toggle", "--help"},
                                         CommandWords{"show", "--help"}, CommandWords{"settings", "--help"},
                                         CommandWords{"about", "--help"}, CommandWords{"quit", "--help"},
                                         CommandWords{"list", "--help"}, CommandWords{"defaults", "--help"},
                                         CommandWords{"defaults", "read", "--help"},
                                         CommandWords{"defaults", "write", "--help"},
                                         CommandWords{"defaults", "delete", "--help"}));

TEST_F(CommandLineTest, PrintsTheVersion) {
  EXPECT_EQ(commandLine.run({"--version"}).output.rfind("quillmonger ", 0), 0U);
}

TEST_F(CommandLineTest, AnswersALineWithALine) {
  const auto reply = commandLine.answer(commandmessage::encode(CommandWords{"toggle"}));

  EXPECT_EQ(commandmessage::decodeResult(reply), CommandResult());
  EXPECT_EQ(called, std::vector<std::string>{"toggle"});
}

TEST_F(CommandLineTest, AnswersAMalformedLineWithAnError) {
  EXPECT_EQ(commandmessage::decodeResult(commandLine.answer("{"))->exitCode, 2);
}

}  // namespace
