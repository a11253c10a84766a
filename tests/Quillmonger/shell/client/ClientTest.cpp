#include "Quillmonger/shell/client/Client.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <fstream>
#include <future>
#include <memory>
#include <optional>
#include <sstream>

#include "Defaults/DefaultsFile.h"
#include "Platform/freedesktop/CommandSocket.h"
#include "Quillmonger/shell/client/StartedApplication.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/VirtualRunLoop.h"

namespace {

namespace fs = std::filesystem;
using namespace quillmonger;
using namespace std::chrono_literals;

// The program's side: a socket whose main queue runs while a command waits for its answer.
class ClientTest : public testing::Test {
 protected:
  testsupport::TemporaryFolder folder;
  testsupport::VirtualRunLoop runLoop;
  std::unique_ptr<platform::CommandSocket> socket;
  std::vector<CommandWords> heard;
  std::string heardInput;
  int starts = 0;
  std::string input;
  std::optional<bool> isSure;
  Client::Surroundings surroundings{
      folder.path() / "socket",
      folder.path() / "settings.json",
      true,
      [this](std::size_t limit) { return input.size() <= limit ? std::optional(input) : std::nullopt; },
      [this](const std::string&) { return isSure; },
      [this] { return ++starts > 0; },
      50ms,
      5000ms};

  void startProgram() {
    socket = platform::CommandSocket::listen(folder.path() / "socket", runLoop,
                                             [this](const std::string& request, const auto& reply) {
                                               const auto decoded = commandmessage::decodeRequest(request);
                                               heard.push_back(decoded.value().words);
                                               heardInput = decoded.value().input;
                                               reply(commandmessage::encode(CommandResult{3, "out", "error"}));
                                             });
    ASSERT_NE(socket, nullptr);
  }
  CommandResult run(const CommandWords& words) {
    auto result = std::async(std::launch::async, [&] { return Client(surroundings).run(words); });
    while (result.wait_for(1ms) != std::future_status::ready)
      runLoop.runPosted();
    return result.get();
  }
};

TEST_F(ClientTest, HandsItsWordsToTheRunningProgramAndItsAnswerBack) {
  startProgram();

  const auto result = run({"defaults", "write", "historySize", "50"});

  EXPECT_EQ(result, (CommandResult{3, "out", "error"}));
  EXPECT_EQ(heard, (std::vector<CommandWords>{{"defaults", "write", "historySize", "50"}}));
  EXPECT_FALSE(fs::exists(surroundings.settingsFile));
}

TEST_F(ClientTest, StartsTheProgramToToggleAndShowsThen) {
  surroundings.startPatience = 5000ms;
  surroundings.startApplication = [this] {
    ++starts;
    startProgram();
    return true;
  };

  const auto result = run({"toggle"});

  EXPECT_EQ(result.exitCode, 3);
  EXPECT_EQ(starts, 1);
  EXPECT_EQ(heard, (std::vector<CommandWords>{{"show"}}));
}

TEST_F(ClientTest, StartsTheProgramToShowTheSettings) {
  surroundings.startPatience = 5000ms;
  surroundings.startApplication = [this] {
    startProgram();
    return true;
  };

  static_cast<void>(run({"settings"}));

  EXPECT_EQ(heard, (std::vector<CommandWords>{{"settings"}}));
}

TEST_F(ClientTest, GivesUpOnAStartedProgramThatNeverAnswers) {
  EXPECT_EQ(run({"show"}).exitCode, 1);
  EXPECT_EQ(starts, 1);
}

TEST_F(ClientTest, SaysThatTheProgramIsMissing) {
  surroundings.startApplication = [] { return false; };

  EXPECT_NE(run({"show"}).errorOutput.find("can't be started"), std::string::npos);
}

TEST_F(ClientTest, StartsNothingWithoutADisplay) {
  surroundings.hasDisplay = false;

  const auto result = run({"toggle"});

  EXPECT_EQ(result.exitCode, 1);
  EXPECT_NE(result.errorOutput.find("display"), std::string::npos);
  EXPECT_EQ(starts, 0);
}

TEST_F(ClientTest, WhatNeedsTheHistorySaysThatNothingRuns) {
  const std::vector<CommandWords> calls{{"quit"},  {"list"},        {"search", "a"},
                                        {"paste"}, {"delete", "1"}, {"clear", "--yes"}};
  for (const auto& words : calls)
    EXPECT_EQ(run(words), (CommandResult{1, "", "Quillmonger is not running.\n"})) << words[0];
  EXPECT_EQ(starts, 0);
}

TEST_F(ClientTest, WorksOnTheSettingsFileWhenNothingRuns) {
  EXPECT_EQ(run({"defaults", "write", "historySize", "200"}).exitCode, 0);
  EXPECT_EQ(run({"defaults", "read", "historySize"}).output, "200\n");
  EXPECT_EQ(run({"defaults", "delete", "historySize"}).exitCode, 0);
  EXPECT_EQ(run({"defaults", "read", "historySize"}).output, "10\n");
}

TEST_F(ClientTest, KeepsTheOtherEntriesOfTheSettingsFile) {
  std::ofstream(surroundings.settingsFile) << R"({"version":1,"values":{"new":{"date":"x"},"other":{"integer":1}}})";

  run({"defaults", "write", "quickPaste", "true"});

  std::ostringstream text;
  text << std::ifstream(surroundings.settingsFile).rdbuf();
  const auto content = defaults::DefaultsFile::decode(text.str());
  EXPECT_EQ(content->unknown.size(), 1U);
  EXPECT_EQ(content->values.size(), 2U);
}

TEST_F(ClientTest, DoesNotWriteTheFileForReadingAndForErrors) {
  EXPECT_EQ(run({"defaults", "read"}).exitCode, 0);
  EXPECT_EQ(run({"defaults", "write", "historySize", "many"}).exitCode, 1);

  EXPECT_FALSE(fs::exists(surroundings.settingsFile));
}

TEST_F(ClientTest, AnswersMisuseItself) {
  startProgram();

  EXPECT_EQ(run({"tickle"}).exitCode, 2);
  EXPECT_TRUE(heard.empty());
}

TEST_F(ClientTest, SaysThatARunningProgramDoesNotAnswer) {
  surroundings.answerPatience = 20ms;
  startProgram();

  const auto result = Client(surroundings).run({"toggle"});

  EXPECT_EQ(result.exitCode, 1);
  EXPECT_NE(result.errorOutput.find("does not answer"), std::string::npos);
}

TEST_F(ClientTest, FindsTheProgramBesideItselfBeforeLibexec) {
  const auto command = folder.path() / "bin/quillmonger";
  EXPECT_EQ(applicationBeside(command), std::nullopt);

  const auto put = [](const fs::path& path) {
    fs::create_directories(path.parent_path());
    std::ofstream(path) << "#!/bin/sh\n";
    ::chmod(path.c_str(), 0700);
    return path;
  };
  const auto inLibexec = put(folder.path() / "libexec/quillmonger/quillmonger-app");
  EXPECT_EQ(applicationBeside(command), inLibexec);
  const auto beside = put(folder.path() / "bin/quillmonger-app");
  EXPECT_EQ(applicationBeside(command), beside);
}

TEST_F(ClientTest, CannotStartWhatIsNotThere) { EXPECT_FALSE(startDetached(folder.path() / "nothing")); }

TEST_F(ClientTest, HandsStandardInputOverToCopy) {
  startProgram();
  input = std::string("\x00\xff", 2);

  EXPECT_EQ(run({"copy", "--type", "image/png"}).exitCode, 3);

  EXPECT_EQ(heard, (std::vector<CommandWords>{{"copy", "--type", "image/png"}}));
  EXPECT_EQ(heardInput, input);
}

TEST_F(ClientTest, LeavesStandardInputAloneForAText) {
  startProgram();
  input = "input";

  run({"copy", "text"});

  EXPECT_EQ(heardInput, "");
}

TEST_F(ClientTest, RefusesInputThatIsTooLarge) {
  startProgram();
  input = std::string(commandmessage::inputLimit + 1, 'a');

  const auto result = run({"copy"});

  EXPECT_EQ(result.exitCode, 1);
  EXPECT_NE(result.errorOutput.find("8 MiB"), std::string::npos);
  EXPECT_TRUE(heard.empty());
}

TEST_F(ClientTest, StartsTheProgramToCopy) {
  surroundings.startPatience = 5000ms;
  surroundings.startApplication = [this] {
    startProgram();
    return true;
  };

  run({"copy", "text"});

  EXPECT_EQ(heard, (std::vector<CommandWords>{{"copy", "text"}}));
}

TEST_F(ClientTest, ClearsAfterAYes) {
  startProgram();
  isSure = true;

  run({"clear"});

  EXPECT_EQ(heard, (std::vector<CommandWords>{{"clear", "--yes"}}));
}

TEST_F(ClientTest, ClearsNothingAfterANo) {
  startProgram();
  isSure = false;

  EXPECT_EQ(run({"clear"}).exitCode, 1);

  EXPECT_TRUE(heard.empty());
}

TEST_F(ClientTest, ClearsNothingWhenNobodyCanBeAsked) {
  startProgram();

  EXPECT_EQ(run({"clear"}).exitCode, 2);

  EXPECT_TRUE(heard.empty());
}

TEST_F(ClientTest, SwitchesIncognitoInTheFileWhenNothingRuns) {
  EXPECT_EQ(run({"incognito", "on"}).exitCode, 0);

  EXPECT_EQ(run({"incognito", "status"}).output, "on\n");
}

TEST_F(ClientTest, DoesNotWriteTheFileForTheStatusOfIncognito) {
  run({"incognito", "status"});

  EXPECT_FALSE(fs::exists(surroundings.settingsFile));
}

}  // namespace
