#include "Quillmonger/shell/command/CommandLine.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <optional>
#include <utility>

#include "Quillmonger/settings/SettingsKeys.h"
#include "Quillmonger/shell/command/RecordList.h"
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

class FakeCommandedHistory final : public CommandedHistory {
 public:
  [[nodiscard]] Records records() const override { return present; }
  void search(std::string term, Term kind, std::function<void(Records)> done) override {
    log.push_back((kind == Term::text ? "search text " : "search expression ") + term);
    finishSearch = std::move(done);
  }
  void paste(const Record& record) override { log.push_back("paste " + record->id().toString()); }
  void remove(const Records& records) override {
    for (const auto& record : records)
      log.push_back("remove " + record->id().toString());
  }
  void removeAll() override { log.emplace_back("remove all"); }
  void copy(const std::string& type, std::string bytes) override { log.push_back("copy " + type + " " + bytes); }

  Records present;
  std::vector<std::string> log;
  std::function<void(Records)> finishSearch;
};

class CommandLineTest : public testing::Test {
 protected:
  std::vector<std::string> called;
  FakeCommandedHistory history;
  CommandedHistory::Records& records = history.present;
  defaults::UserDefaults store;
  defaults::Defaults settings{store};
  CommandLine commandLine{
      {[this] { called.emplace_back("toggle"); }, [this] { called.emplace_back("show"); },
       [this] { called.emplace_back("settings"); }, [this] { called.emplace_back("about"); },
       [this](const std::vector<std::string>& urls) { called = urls; }, [this] { called.emplace_back("quit"); },
       [](const std::string& mimeType) { return "type of " + mimeType; }},
      history,
      settings};

  std::optional<CommandResult> answered;
  void start(CommandWords words, std::string input = {}) {
    answered.reset();
    commandLine.run({std::move(words), std::move(input)}, [this](const CommandResult& result) { answered = result; });
  }
  CommandResult run(CommandWords words, std::string input = {}) {
    start(std::move(words), std::move(input));
    return answered.value_or(CommandResult{99, "no answer", {}});
  }
  std::string answer(const std::string& line) {
    std::string reply;
    commandLine.answer(line, [&reply](std::string text) { reply = std::move(text); });
    return reply;
  }
  nlohmann::json listed() { return nlohmann::json::parse(run({"list", "--json"}).output); }
  std::string idOf(std::size_t index) { return records[index]->id().toString(); }
};

TEST_F(CommandLineTest, CarriesOutTheWindowCommands) {
  for (const char* word : {"toggle", "show", "settings", "about", "quit"})
    EXPECT_EQ(run({word}), CommandResult()) << word;

  EXPECT_EQ(called, (std::vector<std::string>{"toggle", "show", "settings", "about", "quit"}));
}

TEST_F(CommandLineTest, HandsOnUrls) {
  EXPECT_EQ(run({"quillmonger://a", "https://b"}), CommandResult());

  EXPECT_EQ(called, (std::vector<std::string>{"quillmonger://a", "https://b"}));
}

TEST_F(CommandLineTest, ShowsWithoutWords) {
  EXPECT_EQ(run({}), CommandResult());

  EXPECT_EQ(called, std::vector<std::string>{"show"});
}

TEST_F(CommandLineTest, PrintsALineForEachRecordNewestFirst) {
  records = {textItem("new", "org.example.Editor"), textItem("old")};

  EXPECT_EQ(run({"list"}).output,
            "1  2026-01-01T12:00:00Z  3  org.example.Editor  new\n"
            "2  2026-01-01T12:00:00Z  3  -  old\n");
}

TEST_F(CommandLineTest, KeepsLineEndsAndTerminalCodesOutOfTheLines) {
  records = {
      textItem("a\nb\x1b[31mc\xC2\x9B"
               "d")};

  const auto output = run({"list"}).output;

  EXPECT_EQ(output, "1  2026-01-01T12:00:00Z  12  -  a b [31mc d\n");
}

TEST_F(CommandLineTest, ListsAsJson) {
  records = {textItem("text", "org.example.Editor")};

  const auto list = listed();

  ASSERT_EQ(list.size(), 1U);
  EXPECT_EQ(list[0]["number"], 1);
  EXPECT_EQ(list[0]["id"], records[0]->id().toString());
  EXPECT_EQ(list[0]["creationDate"], "2026-01-01T12:00:00Z");
  EXPECT_EQ(list[0]["sourceAppBundleIdentifier"], "org.example.Editor");
  EXPECT_EQ(list[0]["types"], nlohmann::json({"public.utf8-plain-text"}));
  EXPECT_EQ(list[0]["size"], 4);
  EXPECT_EQ(list[0]["timesPasted"], 0);
  EXPECT_EQ(list[0]["text"], "text");
}

TEST_F(CommandLineTest, ListsAnEmptyHistoryAsAnEmptyList) {
  EXPECT_EQ(run({"list", "--json"}).output, "[]\n");
  EXPECT_EQ(run({"list"}).output, "");
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

TEST_F(CommandLineTest, EscapesWhatJsonDoesNotTake) {
  const std::string text = "\"\\\n\t\x01\x1f/\u00fc\U0001F600";
  records = {textItem(text, "a\"b")};

  EXPECT_EQ(listed()[0]["text"], text);
  EXPECT_EQ(listed()[0]["sourceAppBundleIdentifier"], "a\"b");
}

TEST_F(CommandLineTest, MendsTextThatIsNoUtf8) {
  records = {textItem("a\xff")};

  EXPECT_EQ(listed()[0]["text"], "a\xEF\xBF\xBD");
}

TEST_F(CommandLineTest, ReadsWritesAndDeletesSettings) {
  EXPECT_EQ(run({"defaults", "write", "historySize", "200"}), CommandResult());
  EXPECT_EQ(settings[keys::historySize], 200);
  EXPECT_EQ(run({"defaults", "read", "historySize"}).output, "200\n");

  EXPECT_EQ(run({"defaults", "delete", "historySize"}), CommandResult());
  EXPECT_EQ(run({"defaults", "read", "historySize"}).output, "10\n");
}

TEST_F(CommandLineTest, ReadsAllSettingsWithoutAName) {
  const auto output = run({"defaults", "read"}).output;

  EXPECT_EQ(std::count(output.begin(), output.end(), '\n'), 29);
  EXPECT_NE(output.find("soundVolume = 0.45\n"), std::string::npos);
}

TEST_F(CommandLineTest, FailsWith1ForAnUnknownSetting) {
  const auto result = run({"defaults", "read", "nothing"});

  EXPECT_EQ(result.exitCode, 1);
  EXPECT_NE(result.errorOutput.find("nothing"), std::string::npos);
}

class Misuse : public CommandLineTest, public testing::WithParamInterface<CommandWords> {};

TEST_P(Misuse, FailsWith2AndTheUsage) {
  const auto result = run(GetParam());

  EXPECT_EQ(result.exitCode, 2);
  EXPECT_EQ(result.output, "");
  EXPECT_NE(result.errorOutput.find("usage: quillmonger"), std::string::npos);
  EXPECT_TRUE(called.empty());
  EXPECT_TRUE(history.log.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Words, Misuse,
    testing::Values(CommandWords{"tickle"}, CommandWords{""}, CommandWords{"toggle", "now"},
                    CommandWords{"toggle", "--json"}, CommandWords{"list", "--xml"}, CommandWords{"defaults"},
                    CommandWords{"defaults", "erase"}, CommandWords{"defaults", "write", "historySize"},
                    CommandWords{"defaults", "delete"}, CommandWords{"--verbose"}, CommandWords{"search"},
                    CommandWords{"search", "a", "b"}, CommandWords{"delete"}, CommandWords{"delete", "0"},
                    CommandWords{"delete", "1", "--help"}, CommandWords{"paste", "first"},
                    CommandWords{"paste", "--json"}, CommandWords{"incognito"}, CommandWords{"incognito", "maybe"},
                    CommandWords{"incognito", "--json", "on"}, CommandWords{"list", "--limit"},
                    CommandWords{"list", "--limit", "0"}, CommandWords{"list", "--limit=-1"},
                    CommandWords{"list", "--json=yes"}, CommandWords{"copy", "--type", "png", "a"},
                    CommandWords{"copy", "--type", "image/", "a"}, CommandWords{"copy", "--type", "a/b c", "a"},
                    CommandWords{"copy", "-x"}));

class Help : public CommandLineTest, public testing::WithParamInterface<CommandWords> {};

TEST_P(Help, IsPrintedAndNothingIsDone) {
  const auto result = run(GetParam());

  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.output.rfind("usage: quillmonger", 0), 0U);
  EXPECT_TRUE(called.empty());
}

INSTANTIATE_TEST_SUITE_P(Words, Help,
                         testing::Values(CommandWords{"--help"}, CommandWords{"toggle", "--help"},
                                         CommandWords{"show", "--help"}, CommandWords{"settings", "--help"},
                                         CommandWords{"about", "--help"}, CommandWords{"quit", "--help"},
                                         CommandWords{"list", "--help"}, CommandWords{"list", "--json", "-h"},
                                         CommandWords{"search", "--help"}, CommandWords{"copy", "--help"},
                                         CommandWords{"paste", "--help"}, CommandWords{"delete", "--help"},
                                         CommandWords{"clear", "--yes", "--help"}, CommandWords{"incognito", "--help"},
                                         CommandWords{"defaults", "--help"}, CommandWords{"defaults", "read", "--help"},
                                         CommandWords{"defaults", "write", "--help"},
                                         CommandWords{"defaults", "delete", "--help"}));

TEST_F(CommandLineTest, PrintsTheVersion) { EXPECT_EQ(run({"--version"}).output.rfind("quillmonger ", 0), 0U); }

TEST_F(CommandLineTest, AnswersALineWithALine) {
  const auto reply = answer(commandmessage::encode(CommandRequest{{"toggle"}, {}}));

  EXPECT_EQ(commandmessage::decodeResult(reply), CommandResult());
  EXPECT_EQ(called, std::vector<std::string>{"toggle"});
}

TEST_F(CommandLineTest, AnswersAMalformedLineWithAnError) {
  EXPECT_EQ(commandmessage::decodeResult(answer("{"))->exitCode, 2);
}

TEST_F(CommandLineTest, ListsNoMoreThanTheLimit) {
  records = {textItem("new"), textItem("old"), textItem("oldest")};

  EXPECT_EQ(nlohmann::json::parse(run({"list", "--limit", "2", "--json"}).output).size(), 2U);
  EXPECT_EQ(nlohmann::json::parse(run({"list", "--limit=9", "--json"}).output).size(), 3U);
}

TEST_F(CommandLineTest, ListsTheFieldsOfARecordInTheDocumentedOrder) {
  records = {textItem("text")};
  std::vector<std::string> names;

  const auto list = nlohmann::ordered_json::parse(run({"list", "--json"}).output);
  for (const auto& [name, value] : list[0].items())
    names.push_back(name);

  EXPECT_EQ(names, (std::vector<std::string>{"number", "id", "creationDate", "sourceAppBundleIdentifier", "types",
                                             "size", "timesPasted", "text"}));
}

TEST_F(CommandLineTest, AnswersASearchWhenItIsDoneWithTheNumbersOfTheList) {
  records = {textItem("a"), textItem("b"), textItem("c")};

  start({"search", "--json", "term"});
  EXPECT_FALSE(answered);
  history.finishSearch({records[2], records[0]});

  const auto found = nlohmann::json::parse(answered->output);
  ASSERT_EQ(found.size(), 2U);
  EXPECT_EQ(found[0]["number"], 3);
  EXPECT_EQ(found[0]["text"], "c");
  EXPECT_EQ(found[1]["number"], 1);
  EXPECT_EQ(history.log, std::vector<std::string>{"search text term"});
}

TEST_F(CommandLineTest, LeavesOutWhatLeftTheHistoryDuringTheSearch) {
  records = {textItem("a"), textItem("b")};
  const auto gone = records[0];
  start({"search", "term"});

  records.erase(records.begin());
  history.finishSearch({gone, records[0]});

  EXPECT_EQ(answered->output, "1  2026-01-01T12:00:00Z  1  -  b\n");
}

TEST_F(CommandLineTest, FindsNothingWithoutFailing) {
  start({"search", "--json", "term"});
  history.finishSearch({});

  EXPECT_EQ(answered, (CommandResult{0, "[]\n", {}}));
}

TEST_F(CommandLineTest, TakesTheTermAsAnExpressionOnlyWhenAsked) {
  start({"search", "--regex", "^a"});
  start({"search", "--", "--regex"});

  EXPECT_EQ(history.log, (std::vector<std::string>{"search expression ^a", "search text --regex"}));
}

TEST_F(CommandLineTest, CopiesAText) {
  EXPECT_EQ(run({"copy", "a text"}), CommandResult());

  EXPECT_EQ(history.log, std::vector<std::string>{"copy type of text/plain a text"});
}

TEST_F(CommandLineTest, CopiesTheInputWithoutATextOrForADash) {
  EXPECT_EQ(run({"copy"}, "in"), CommandResult());
  EXPECT_EQ(run({"copy", "-"}, "put"), CommandResult());

  EXPECT_EQ(history.log, (std::vector<std::string>{"copy type of text/plain in", "copy type of text/plain put"}));
}

TEST_F(CommandLineTest, CopiesBytesOfAnotherTypeAsTheyAre) {
  EXPECT_EQ(run({"copy", "--type", "image/png"}, "\x89PNG"), CommandResult());

  EXPECT_EQ(history.log, std::vector<std::string>{"copy type of image/png \x89PNG"});
}

TEST_F(CommandLineTest, CopiesNeitherNothingNorTextThatIsNoUtf8) {
  EXPECT_EQ(run({"copy"}).exitCode, 1);
  EXPECT_EQ(run({"copy", ""}).exitCode, 1);
  EXPECT_EQ(run({"copy"}, "\xff").exitCode, 1);
  EXPECT_EQ(run({"copy", "--type", "text/html"}, "\xff").exitCode, 1);

  EXPECT_TRUE(history.log.empty());
}

TEST_F(CommandLineTest, PastesTheNewestOrTheNamedRecord) {
  records = {textItem("new"), textItem("old")};

  EXPECT_EQ(run({"paste"}), CommandResult());
  EXPECT_EQ(run({"paste", "2"}), CommandResult());
  EXPECT_EQ(run({"paste", idOf(1)}), CommandResult());

  EXPECT_EQ(history.log, (std::vector<std::string>{"paste " + idOf(0), "paste " + idOf(1), "paste " + idOf(1)}));
}

TEST_F(CommandLineTest, PrintsTheWholeTextOfARecordAsItIs) {
  std::string text(5000, 'x');
  text += "\n\ty";
  records = {textItem(text)};

  EXPECT_EQ(run({"paste", "--print"}), (CommandResult{0, text, {}}));
  EXPECT_EQ(nlohmann::json::parse(run({"paste", "--print", "--json", "1"}).output)["text"], text);
  EXPECT_TRUE(history.log.empty());
}

TEST_F(CommandLineTest, FailsToPrintARecordWithoutText) {
  Payload payload;
  payload.emplace("public.png", Data("png"));
  records = {std::make_shared<ClipboardItem>(std::move(payload), std::nullopt, std::nullopt, foundation::Date())};

  EXPECT_EQ(run({"paste", "--print"}).exitCode, 1);
}

TEST_F(CommandLineTest, FailsToPrintATextThatIsTooLarge) {
  records = {textItem(std::string(recordlist::wholeLimit + 1, 'x'))};

  EXPECT_EQ(run({"paste", "--print"}).exitCode, 1);
}

TEST_F(CommandLineTest, FailsForARecordThatDoesNotExist) {
  records = {textItem("a")};
  const auto unknownId = foundation::Uuid::random().toString();

  EXPECT_EQ(run({"paste", "2"}), (CommandResult{1, "", "quillmonger: There is no record 2.\n"}));
  EXPECT_EQ(run({"delete", unknownId}).exitCode, 1);
  EXPECT_TRUE(history.log.empty());
}

TEST_F(CommandLineTest, DeletesAllNamedRecords) {
  records = {textItem("a"), textItem("b"), textItem("c")};

  EXPECT_EQ(run({"delete", "1", idOf(2)}), CommandResult());

  EXPECT_EQ(history.log, (std::vector<std::string>{"remove " + idOf(0), "remove " + idOf(2)}));
}

TEST_F(CommandLineTest, DeletesNothingWhenOneIsMissing) {
  records = {textItem("a")};

  EXPECT_EQ(run({"delete", "1", "2"}).exitCode, 1);

  EXPECT_TRUE(history.log.empty());
}

TEST_F(CommandLineTest, ClearsOnlyWhenItIsConfirmed) {
  EXPECT_EQ(run({"clear"}).exitCode, 2);
  EXPECT_TRUE(history.log.empty());

  EXPECT_EQ(run({"clear", "--yes"}), CommandResult());
  EXPECT_EQ(history.log, std::vector<std::string>{"remove all"});
}

TEST_F(CommandLineTest, SwitchesIncognitoAndTellsItsStatus) {
  EXPECT_EQ(run({"incognito", "status"}).output, "off\n");
  EXPECT_EQ(run({"incognito", "on"}), CommandResult());
  EXPECT_TRUE(settings[keys::isIncognitoMode]);
  EXPECT_EQ(run({"incognito", "status"}).output, "on\n");
  EXPECT_EQ(nlohmann::json::parse(run({"incognito", "status", "--json"}).output),
            nlohmann::json({{"isIncognitoMode", true}}));

  run({"incognito", "toggle"});
  EXPECT_FALSE(settings[keys::isIncognitoMode]);
  run({"incognito", "toggle"});
  EXPECT_TRUE(settings[keys::isIncognitoMode]);
  run({"incognito", "off"});
  EXPECT_FALSE(settings[keys::isIncognitoMode]);
}

TEST_F(CommandLineTest, ReadsSettingsAsJsonOfTheirTypes) {
  const auto all = nlohmann::json::parse(run({"defaults", "read", "--json"}).output);

  EXPECT_EQ(all.size(), 29U);
  EXPECT_EQ(all["historySize"], 10);
  EXPECT_EQ(all["persistHistory"], false);
  EXPECT_EQ(all["truncationMode"], "middle");
  EXPECT_TRUE(all["ignoredApps"].is_array());
  EXPECT_EQ(run({"defaults", "read", "truncationMode", "--json"}).output, "\"middle\"\n");
}

TEST_F(CommandLineTest, TakesTheValueOfASettingForWhatItIs) {
  EXPECT_EQ(run({"defaults", "write", "historySize", "--json"}).exitCode, 1);
}

TEST_F(CommandLineTest, SuggestsTheNearestWord) {
  EXPECT_NE(run({"tgogle"}).errorOutput.find("Did you mean \"toggle\"?"), std::string::npos);
  EXPECT_NE(run({"list", "--jsno"}).errorOutput.find("Did you mean \"--json\"?"), std::string::npos);
  EXPECT_EQ(run({"xylophone"}).errorOutput.find("Did you mean"), std::string::npos);
}

TEST_F(CommandLineTest, SaysHowToGiveAWordThatBeginsWithADash) {
  EXPECT_NE(run({"search", "-v"}).errorOutput.find("Put \"--\" before"), std::string::npos);
}

}  // namespace
