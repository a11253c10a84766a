#include "Quillmonger/settings/panes/ApplicationFinder.h"

#include <gtest/gtest.h>

#include "tests/support/FakeInstalledApplications.h"
#include "tests/support/InLocale.h"

namespace {

using quillmonger::ApplicationFinder;
using Names = std::vector<std::string>;

class ApplicationFinderTest : public testing::Test {
 protected:
  // The order is the locale's.
  testsupport::InLocale english{"en_US"};

  void install(const std::string& name, const std::string& genericName = {}, std::vector<std::string> keywords = {}) {
    installed.install("id-" + std::to_string(++count), name, genericName, std::move(keywords));
  }
  Names find(std::string_view term) const {
    Names names;
    for (const auto& application : ApplicationFinder(installed.applications()).find(term))
      names.push_back(application->name);
    return names;
  }

  testsupport::FakeInstalledApplications installed;
  int count = 0;
};

TEST_F(ApplicationFinderTest, GivesAllInAlphabeticalOrderWhateverCaseAndAccents) {
  for (const char* name : {"zebra", "Éclair", "apple", "Eclipse", "Ökonomie", "Orca", "ebook"})
    install(name);

  EXPECT_EQ(find(""), (Names{"apple", "ebook", "Éclair", "Eclipse", "Ökonomie", "Orca", "zebra"}));
  EXPECT_EQ(find("  ").size(), 7U);
}

TEST_F(ApplicationFinderTest, OrdersAsTheLanguageOfTheUserDoes) {
  for (const char* name : {"Zebra", "Ökonomie", "Orca"})
    install(name);

  for (const auto* const locale : {"en_US", "de_DE", "el_GR", "ar_EG", "ja_JP", "en_US_POSIX"}) {
    const testsupport::InLocale user(locale);
    EXPECT_EQ(find(""), (Names{"Ökonomie", "Orca", "Zebra"})) << locale;
  }
  const testsupport::InLocale swedish("sv_SE");
  EXPECT_EQ(find(""), (Names{"Orca", "Zebra", "Ökonomie"}));
}

TEST_F(ApplicationFinderTest, OrdersApplicationsOfOneNameByTheirIdentifier) {
  installed.install("b", "Files");
  installed.install("a", "Files");

  const auto found = ApplicationFinder(installed.applications()).find("");

  EXPECT_EQ(found.at(0)->identifier, "a");
}

struct Search {
  const char* name;
  const char* term;
};
class ApplicationFinderFinds : public ApplicationFinderTest, public testing::WithParamInterface<Search> {};

TEST_P(ApplicationFinderFinds, WhateverCaseAndAccents) {
  install(GetParam().name);
  install("something else");

  for (const auto* const locale : {"en_US", "de_DE", "tr_TR", "el_GR", "ar_EG", "ja_JP"}) {
    const testsupport::InLocale user(locale);
    EXPECT_EQ(find(GetParam().term), Names{GetParam().name}) << locale;
  }
}

INSTANTIATE_TEST_SUITE_P(Names, ApplicationFinderFinds,
                         testing::Values(Search{"Éditeur", "edi"}, Search{"Editor", "ÉDI"}, Search{"Straße", "STRASSE"},
                                         Search{"Søk", "sok"}, Search{"Ελλάδα", "ελλαδα"},
                                         Search{"E\xCC\x81t\xC3\xA9", "ete"}, Search{"Почта", "поч"},
                                         Search{"日本語入力", "入力"}, Search{"ＴＥＸＴ", "text"},
                                         Search{"GNU Image Program", " image p "}, Search{"IDLE", "idle"},
                                         Search{"İzleme", "izle"}, Search{"كتاب", "كت"}));

TEST_F(ApplicationFinderTest, FindsByGenericNameKeywordsAndIdentifier) {
  install("Falkon", "Web Browser");
  install("Mousepad", "", {"notes", "write"});
  installed.install("org.example.Draw", "Pencil");

  EXPECT_EQ(find("browser"), Names{"Falkon"});
  EXPECT_EQ(find("writ"), Names{"Mousepad"});
  EXPECT_EQ(find("example.draw"), Names{"Pencil"});
  EXPECT_EQ(find("zebra"), Names{});
}

TEST_F(ApplicationFinderTest, PutsNamesThatBeginWithTheTermFirstThenWordsThenOtherNamesThenTheRest) {
  install("Accelerator", "Terminal");
  install("Determine");
  install("My Terminal");
  install("Xterm (terminal)");
  install("Terminal");

  EXPECT_EQ(find("term"), (Names{"Terminal", "My Terminal", "Xterm (terminal)", "Determine", "Accelerator"}));
}

TEST_F(ApplicationFinderTest, TakesASignOfAnExpressionAsItIs) {
  install("C++ [IDE]");
  install("Cpp");

  EXPECT_EQ(find("c++ ["), Names{"C++ [IDE]"});
  EXPECT_EQ(find(".*"), Names{});
}

TEST_F(ApplicationFinderTest, SurvivesTextThatIsNone) {
  install("\xff\xfe");

  EXPECT_EQ(find("\xff").size(), 1U);
}

}  // namespace
