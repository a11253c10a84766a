#include "Quillmonger/settings/panes/IgnoreAppsViewModel.h"

#include <gtest/gtest.h>

#include "Quillmonger/settings/SettingsKeys.h"
#include "tests/support/FakeAppPicker.h"
#include "tests/support/FakeApplicationBundles.h"
#include "tests/support/TestDefaults.h"

namespace {

using foundation::Url;
using quillmonger::IgnoreAppsViewModel;
using quillmonger::SystemApp;
namespace keys = quillmonger::keys;
using Strings = std::vector<std::string>;

const std::string builtIn = "file:///System/Applications/Utilities/Keychain%20Access.app/";

std::string urlOf(const std::string& name) { return "file:///usr/share/applications/" + name + ".desktop"; }

class IgnoreAppsViewModelTest : public testing::Test {
 protected:
  IgnoreAppsViewModelTest() {
    for (const char* name : {"editor", "mail", "browser"})
      bundles.add(urlOf(name), {std::string("org.example.") + name, std::string("The ") + name});
  }

  IgnoreAppsViewModel& model() {
    if (!m_model) m_model = std::make_unique<IgnoreAppsViewModel>(collaborators());
    return *m_model;
  }
  IgnoreAppsViewModel& modelOf(const Strings& names) {
    Strings urls;
    for (const auto& name : names)
      urls.push_back(urlOf(name));
    settings.defaults.set(keys::ignoredApps, urls);
    return model();
  }
  IgnoreAppsViewModel::Collaborators collaborators() { return {settings.defaults, bundles, picker}; }
  static SystemApp app(const std::string& name) {
    return SystemApp::make("The " + name, "org.example." + name, *Url::parse(urlOf(name)));
  }
  void pick(const std::optional<Url>& url) {
    model().addApp();
    picker.decide(url);
  }

  Strings rows() {
    Strings identifiers;
    for (const auto& row : model().apps().value())
      identifiers.push_back(row.bundleIdentifier);
    return identifiers;
  }
  std::string selected() {
    const auto& app = model().selectedApp().value();
    return app ? app->bundleIdentifier : "none";
  }
  Strings stored() { return settings.defaults[keys::ignoredApps]; }

  testsupport::TestDefaults settings;
  testsupport::FakeApplicationBundles bundles;
  testsupport::FakeAppPicker picker;

 private:
  std::unique_ptr<IgnoreAppsViewModel> m_model;
};

TEST_F(IgnoreAppsViewModelTest, HoldsTheBuiltInEntryInAFreshStore) {
  EXPECT_EQ(rows(), Strings{"com.apple.keychainaccess"});
  EXPECT_EQ(selected(), "none");
}

TEST_F(IgnoreAppsViewModelTest, AddsTheChosenApplicationAtTheEndAndSelectsIt) {
  pick(Url::parse(urlOf("mail")));

  EXPECT_EQ(rows(), (Strings{"com.apple.keychainaccess", "org.example.mail"}));
  EXPECT_EQ(model().apps().value().back().name, "The mail");
  EXPECT_EQ(stored(), (Strings{builtIn, urlOf("mail")}));
  EXPECT_EQ(selected(), "org.example.mail");
}

TEST_F(IgnoreAppsViewModelTest, KeepsTheOrderOfAdding) {
  modelOf({"mail"});

  pick(Url::parse(urlOf("editor")));
  pick(Url::parse(urlOf("browser")));

  EXPECT_EQ(rows(), (Strings{"org.example.mail", "org.example.editor", "org.example.browser"}));
  EXPECT_EQ(stored(), (Strings{urlOf("mail"), urlOf("editor"), urlOf("browser")}));
}

TEST_F(IgnoreAppsViewModelTest, AddsNothingWhenTheUserChoosesNone) {
  modelOf({"mail"});

  pick(std::nullopt);

  EXPECT_EQ(rows(), Strings{"org.example.mail"});
  EXPECT_EQ(selected(), "none");
}

TEST_F(IgnoreAppsViewModelTest, AddsNothingForAChoiceThatIsNoApplicationOrHasNoIdentifier) {
  modelOf({"mail"});
  bundles.add(urlOf("nameless"), {std::nullopt, "Nameless"});
  testing::internal::CaptureStdout();

  pick(Url::parse(urlOf("missing")));
  pick(Url::parse(urlOf("nameless")));

  EXPECT_EQ(rows(), Strings{"org.example.mail"});
  EXPECT_EQ(stored(), Strings{urlOf("mail")});
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

TEST_F(IgnoreAppsViewModelTest, AddsAnApplicationWithoutANameWithAnEmptyOne) {
  bundles.add(urlOf("plain"), {"org.example.plain", std::nullopt});

  pick(Url::parse(urlOf("plain")));

  EXPECT_EQ(model().apps().value().back().name, "");
  EXPECT_EQ(quillmonger::shownName(model().apps().value().back()), "plain");
}

TEST_F(IgnoreAppsViewModelTest, SelectsTheRowOfAnApplicationThatIsListedAndAddsNothing) {
  modelOf({"mail", "editor"});

  model().add(app("mail"));

  EXPECT_EQ(rows(), (Strings{"org.example.mail", "org.example.editor"}));
  EXPECT_EQ(stored(), (Strings{urlOf("mail"), urlOf("editor")}));
  EXPECT_EQ(model().selectedApp().value()->id, model().apps().value().front().id);
}

TEST_F(IgnoreAppsViewModelTest, LeavesAnEmptyStoredListAndNotTheDefaultWhenTheLastRowIsRemoved) {
  model().removeApp(model().apps().value().front());

  EXPECT_EQ(rows(), Strings{});
  EXPECT_TRUE(settings.suite.objectForKey("ignoredApps").has_value());
  EXPECT_EQ(stored(), Strings{});
}

TEST_F(IgnoreAppsViewModelTest, KeepsTheSelectionOfTheLastRowThatWasRemoved) {
  modelOf({"mail"});
  model().selectedApp().set(app("mail"));

  model().removeApp(app("mail"));

  EXPECT_EQ(selected(), "org.example.mail");
}

TEST_F(IgnoreAppsViewModelTest, SelectsTheRowThatTookThePlaceOfTheRemovedSelectedRow) {
  modelOf({"mail", "editor", "browser"});
  model().selectedApp().set(app("editor"));

  model().removeApp(app("editor"));

  EXPECT_EQ(rows(), (Strings{"org.example.mail", "org.example.browser"}));
  EXPECT_EQ(selected(), "org.example.browser");
}

TEST_F(IgnoreAppsViewModelTest, SelectsTheNewLastRowWhenTheLastOneWasSelectedAndRemoved) {
  modelOf({"mail", "editor"});
  model().selectedApp().set(app("editor"));

  model().removeApp(app("editor"));

  EXPECT_EQ(selected(), "org.example.mail");
}

TEST_F(IgnoreAppsViewModelTest, LeavesTheSelectionAloneWhenAnotherRowIsRemoved) {
  modelOf({"mail", "editor"});
  model().selectedApp().set(app("editor"));

  model().removeApp(app("mail"));

  EXPECT_EQ(selected(), "org.example.editor");
  EXPECT_EQ(stored(), Strings{urlOf("editor")});
}

TEST_F(IgnoreAppsViewModelTest, RemovesTheSelectedApplicationWhenItIsHandedThatItself) {
  modelOf({"mail", "editor"});
  model().selectedApp().set(app("editor"));

  model().removeApp(*model().selectedApp().value());

  EXPECT_EQ(stored(), Strings{urlOf("mail")});
}

TEST_F(IgnoreAppsViewModelTest, RemovesNothingThatIsNotListed) {
  modelOf({"mail"});

  model().removeApp(app("editor"));

  EXPECT_EQ(rows(), Strings{"org.example.mail"});
  EXPECT_EQ(stored(), Strings{urlOf("mail")});
}

TEST_F(IgnoreAppsViewModelTest, RemovesARowWhoseStoredEntryHasGoneWithoutWriting) {
  modelOf({"mail", "editor"});
  settings.defaults.set(keys::ignoredApps, {urlOf("editor")});

  model().removeApp(app("mail"));

  EXPECT_EQ(rows(), Strings{"org.example.editor"});
  EXPECT_EQ(stored(), Strings{urlOf("editor")});
}

TEST_F(IgnoreAppsViewModelTest, DropsADeletedApplicationAtTheNextReadWithAMessageAndKeepsItsStringUntilTheNextWrite) {
  settings.defaults.set(keys::ignoredApps, {urlOf("deleted"), urlOf("mail")});
  testing::internal::CaptureStdout();

  model();

  EXPECT_EQ(testing::internal::GetCapturedStdout(), "could not decode object '" + urlOf("deleted") + "' into url\n");
  EXPECT_EQ(rows(), Strings{"org.example.mail"});
  EXPECT_EQ(stored(), (Strings{urlOf("deleted"), urlOf("mail")}));

  model().add(app("editor"));

  EXPECT_EQ(stored(), (Strings{urlOf("mail"), urlOf("editor")}));
}

TEST_F(IgnoreAppsViewModelTest, DoesNotBringBackTheBuiltInEntryOnceTheListWasWritten) {
  model().add(app("mail"));
  model().removeApp(model().apps().value().front());

  const IgnoreAppsViewModel next(collaborators());

  EXPECT_EQ(stored(), Strings{urlOf("mail")});
}

TEST_F(IgnoreAppsViewModelTest, AddsNothingAfterItsEnd) {
  auto model = std::make_unique<IgnoreAppsViewModel>(collaborators());
  model->addApp();
  model.reset();

  picker.decide(Url::parse(urlOf("mail")));

  EXPECT_EQ(stored(), Strings{builtIn});
}

TEST_F(IgnoreAppsViewModelTest, SelectsTheFirstRowOfAnIdentifierThatIsChosenAgainElsewhere) {
  bundles.add(urlOf("mail-copy"), {"org.example.mail", "A copy"});
  modelOf({"editor", "mail"});

  pick(Url::parse(urlOf("mail-copy")));

  EXPECT_EQ(rows(), (Strings{"org.example.editor", "org.example.mail"}));
  EXPECT_EQ(stored(), (Strings{urlOf("editor"), urlOf("mail")}));
  EXPECT_EQ(model().selectedApp().value()->id, model().apps().value().back().id);
}

TEST_F(IgnoreAppsViewModelTest, RemovesTheFirstAloneOfTwoEntriesOfAnIdentifier) {
  bundles.add(urlOf("mail-copy"), {"org.example.mail", "A copy"});
  modelOf({"mail", "mail-copy"});

  model().removeApp(app("mail"));

  EXPECT_EQ(rows(), Strings{"org.example.mail"});
  EXPECT_EQ(stored(), Strings{urlOf("mail-copy")});
}

TEST_F(IgnoreAppsViewModelTest, HoldsNoRowForAStoredEntryWithoutAnIdentifierAndSaysSo) {
  bundles.add(urlOf("nameless"), {std::nullopt, "Nameless"});
  testing::internal::CaptureStdout();

  modelOf({"nameless", "mail"});

  EXPECT_EQ(testing::internal::GetCapturedStdout(), "could not decode object '" + urlOf("nameless") + "' into url\n");
  EXPECT_EQ(rows(), Strings{"org.example.mail"});
}

TEST_F(IgnoreAppsViewModelTest, RemovesTheRowOfAnApplicationThatIsGoneAndLeavesItsStringStored) {
  modelOf({"mail", "editor"});
  bundles.remove(urlOf("mail"));

  model().removeApp(app("mail"));

  EXPECT_EQ(rows(), Strings{"org.example.editor"});
  EXPECT_EQ(stored(), (Strings{urlOf("mail"), urlOf("editor")}));
}

TEST_F(IgnoreAppsViewModelTest, DropsTheStringOfAnApplicationThatIsGoneWithTheNextRemovalOfAnother) {
  modelOf({"mail", "editor", "browser"});
  bundles.remove(urlOf("mail"));

  model().removeApp(app("editor"));

  EXPECT_EQ(stored(), Strings{urlOf("browser")});
}

TEST(ShownName, IsTheFilesNameOfAnApplicationThatSaysNone) {
  EXPECT_EQ(quillmonger::shownName(SystemApp::make("", "com.apple.keychainaccess", *Url::parse(builtIn))),
            "Keychain Access");
}

}  // namespace
