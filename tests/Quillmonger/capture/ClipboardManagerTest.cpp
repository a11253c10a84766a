#include "Quillmonger/capture/ClipboardManager.h"

#include <gtest/gtest.h>

#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include "Quillmonger/capture/PasteboardTypes.h"
#include "Quillmonger/settings/SettingsKeys.h"
#include "tests/support/FakeApplicationBundles.h"
#include "tests/support/FakeBundleProvider.h"
#include "tests/support/FakePasteStep.h"
#include "tests/support/FakePasteboard.h"
#include "tests/support/FakeStoreContext.h"
#include "tests/support/TestDefaults.h"
#include "tests/support/VirtualRunLoop.h"

namespace {

using namespace std::chrono_literals;
using namespace quillmonger;
using Record = ClipboardManaging::Record;
using Representations = std::vector<std::pair<std::string, std::optional<std::string>>>;

const std::string plainText(pasteboardtype::utf8PlainText);
const std::string html(pasteboardtype::NSPasteboardTypeHTML);
const std::string png(pasteboardtype::NSPasteboardTypePNG);
const std::string marker(pasteboardtype::appMarker);

std::string bytesOf(const ClipboardItem& item, std::string_view type) {
  const auto data = item.data(type);
  return data ? *data->bytes() : "(absent)";
}

std::vector<std::string> typesOf(const ClipboardItem& item) {
  std::vector<std::string> types;
  for (const auto& entry : item.data())
    types.push_back(entry.first);
  return types;
}

class ClipboardManagerTest : public testing::Test {
 protected:
  ClipboardManagerTest() {
    pasteboard.advance();
    subscriptions.push_back(manager.newItemPublisher().subscribe([this](const Record& record) {
      added.push_back(record);
      log.emplace_back("new");
    }));
    subscriptions.push_back(manager.duplicateItemPublisher().subscribe([this](const Record& record) {
      superseded.push_back(record);
      log.emplace_back("duplicate");
    }));
    subscriptions.push_back(
        notificationCenter.observe("ItemCopied", [this](const auto&) { log.emplace_back("ItemCopied"); }));
  }

  void poll() { runLoop.advance(150ms); }
  void startListening() { manager.startListening(); }
  void copyText(const std::string& text) {
    pasteboard.copyText(text);
    poll();
  }
  void copy(Representations representations) {
    pasteboard.copy(std::move(representations));
    poll();
  }
  // What the history does in answer to the streams.
  void store() {
    for (const auto& record : superseded)
      context.remove(record);
    for (const auto& record : added)
      context.insert(record);
    superseded.clear();
    added.clear();
    log.clear();
  }

  testsupport::VirtualRunLoop runLoop;
  testsupport::TestDefaults settings;
  testsupport::FakePasteboard pasteboard{runLoop};
  testsupport::FakeStoreContext context;
  testsupport::FakeBundleProvider bundleProvider;
  testsupport::FakePasteStep pasteStep;
  foundation::NotificationCenter notificationCenter;
  testsupport::FakeApplicationBundles bundles;
  IgnoredApps ignoredApps{settings.defaults, bundles};
  ClipboardManager manager{
      {pasteboard, context, bundleProvider, pasteStep, runLoop, notificationCenter, settings.defaults, ignoredApps}};
  std::vector<Record> added;
  std::vector<Record> superseded;
  std::vector<std::string> log;
  std::vector<foundation::Subscription> subscriptions;
};

using ClipboardManagerDeathTest = ClipboardManagerTest;

TEST_F(ClipboardManagerTest, TellsANewRecordOfACopy) {
  startListening();
  bundleProvider.setFrontmostBundle({"org.example.Editor", foundation::Url::fromFilePath("/apps/editor.desktop")});

  copyText("hello");

  ASSERT_EQ(added.size(), 1U);
  EXPECT_EQ(bytesOf(*added[0], plainText), "hello");
  EXPECT_EQ(added[0]->hashedData(), payloadDigest(added[0]->data()));
  EXPECT_EQ(added[0]->sourceAppBundleIdentifier(), "org.example.Editor");
  EXPECT_EQ(added[0]->sourceAppBundleURL(), foundation::Url::fromFilePath("/apps/editor.desktop"));
  EXPECT_EQ(added[0]->creationDate(), runLoop.date());
  EXPECT_EQ(added[0]->timesPasted(), 0);
  EXPECT_EQ(log, (std::vector<std::string>{"new", "ItemCopied"}));
}

TEST_F(ClipboardManagerTest, LooksEveryHundredAndFiftyMilliseconds) {
  startListening();
  pasteboard.copyText("hello");

  runLoop.advance(149ms);
  EXPECT_TRUE(added.empty());
  runLoop.advance(1ms);

  EXPECT_EQ(added.size(), 1U);
}

TEST_F(ClipboardManagerTest, ReadsNothingWhileTheChangeCountStands) {
  startListening();

  runLoop.advance(10s);

  EXPECT_EQ(pasteboard.reads(), 0);
}

TEST_F(ClipboardManagerTest, CapturesNothingBeforeItListens) {
  copyText("hello");

  EXPECT_TRUE(added.empty());
}

TEST_F(ClipboardManagerTest, CapturesWhatWasCopiedBetweenConstructionAndListening) {
  pasteboard.copyText("during the guide");
  pasteboard.advance();

  startListening();
  poll();

  EXPECT_EQ(added.size(), 1U);
}

TEST_F(ClipboardManagerTest, KeepsEachOfSeveralCopiesBetweenTwoPolls) {
  startListening();
  pasteboard.copyText("one");
  pasteboard.copyText("two");

  poll();
  poll();

  ASSERT_EQ(added.size(), 2U);
  EXPECT_EQ(bytesOf(*added[0], plainText), "one");
  EXPECT_EQ(bytesOf(*added[1], plainText), "two");
}

TEST_F(ClipboardManagerDeathTest, StopsTheProcessWhenItIsStartedTwice) {
  startListening();

  EXPECT_DEATH(manager.startListening(), "startListening may only be called once");
}

TEST_F(ClipboardManagerTest, ConsumesACopyOfSpacesAndLineEndsWithoutARecord) {
  startListening();
  copyText(" \n\t ");
  const int reads = pasteboard.reads();

  poll();

  EXPECT_TRUE(added.empty());
  EXPECT_EQ(pasteboard.reads(), reads);
}

TEST_F(ClipboardManagerTest, LeavesOutABlankItemBesideAPicture) {
  startListening();
  PasteboardItem blank;
  blank.representations.push_back({plainText, foundation::Data("  ")});
  blank.representations.push_back({html, foundation::Data("<br>")});
  PasteboardItem picture;
  picture.representations.push_back({png, foundation::Data("pixels")});

  pasteboard.copy({blank, picture});
  poll();

  ASSERT_EQ(added.size(), 1U);
  EXPECT_EQ(typesOf(*added[0]), std::vector<std::string>{png});
}

TEST_F(ClipboardManagerTest, KeepsUnsupportedTypesBesideASupportedOne) {
  startListening();

  copy({{plainText, "text"}, {"application/x-own", "own"}});

  ASSERT_EQ(added.size(), 1U);
  EXPECT_EQ(bytesOf(*added[0], "application/x-own"), "own");
}

TEST_F(ClipboardManagerTest, DropsACopyOfUnsupportedTypesAlone) {
  startListening();

  copy({{"application/x-own", "own"}});

  EXPECT_TRUE(added.empty());
}

TEST_F(ClipboardManagerTest, DropsACopyWithoutAnyByte) {
  startListening();

  copy({{html, ""}, {png, std::nullopt}});

  EXPECT_TRUE(added.empty());
}

TEST_F(ClipboardManagerTest, KeepsATypeWhoseBytesCouldNotBeRead) {
  startListening();

  copy({{plainText, "text"}, {html, std::nullopt}});

  ASSERT_EQ(added.size(), 1U);
  EXPECT_EQ(typesOf(*added[0]), (std::vector<std::string>{html, plainText}));
}

TEST_F(ClipboardManagerTest, KeepsNothingWhileIncognitoIsOnNorAfterwards) {
  startListening();
  settings.defaults.set(keys::isIncognitoMode, true);
  copyText("secret");

  settings.defaults.set(keys::isIncognitoMode, false);
  poll();

  EXPECT_TRUE(added.empty());
}

TEST_F(ClipboardManagerTest, DropsTransientAndGeneratedCopiesWhateverTheSettings) {
  settings.defaults.set(keys::ignoreSensitiveData, false);
  startListening();

  copy({{plainText, "text"}, {std::string(pasteboardtype::transient), ""}});
  copy({{plainText, "text"}, {std::string(pasteboardtype::autoGenerated), ""}});

  EXPECT_TRUE(added.empty());
}

TEST_F(ClipboardManagerTest, DropsConcealedCopiesOnlyWhileTheSettingIsOn) {
  startListening();
  copy({{plainText, "text"}, {std::string(pasteboardtype::concealed), ""}});
  EXPECT_TRUE(added.empty());

  settings.defaults.set(keys::ignoreSensitiveData, false);
  copy({{plainText, "text"}, {std::string(pasteboardtype::concealed), ""}});

  EXPECT_EQ(added.size(), 1U);
}

TEST_F(ClipboardManagerTest, DropsACopyThatMerelyHasAnImageWhileImagesAreIgnored) {
  settings.defaults.set(keys::ignoreImages, true);
  startListening();

  copy({{plainText, "text"}, {png, "pixels"}});

  EXPECT_TRUE(added.empty());
}

TEST_F(ClipboardManagerTest, KeepsThePasteboardsFilterInStepWithTheSettings) {
  EXPECT_EQ(pasteboard.typeFilter(), TypeFilter{});

  settings.defaults.set(keys::isIncognitoMode, true);
  settings.defaults.set(keys::ignoreSensitiveData, false);
  settings.defaults.set(keys::ignoreImages, true);

  EXPECT_EQ(pasteboard.typeFilter(),
            (TypeFilter{.ignoreSensitiveData = false, .ignoreImages = true, .isIncognitoMode = true}));
}

TEST_F(ClipboardManagerTest, AppliesTheFilterAgainToWhatWasReadBefore) {
  startListening();
  pasteboard.copyText("read already");
  settings.defaults.set(keys::isIncognitoMode, true);

  poll();

  EXPECT_TRUE(added.empty());
}

TEST_F(ClipboardManagerTest, ReplacesTheRecordOfTheSameContent) {
  startListening();
  bundleProvider.setFrontmostBundle({"first", std::nullopt});
  copyText("again");
  added[0]->setTimesPasted(3);
  const auto first = added[0];
  store();
  bundleProvider.setFrontmostBundle({"second", std::nullopt});

  copyText("other");
  store();
  copyText("again");

  EXPECT_EQ(log, (std::vector<std::string>{"duplicate", "new", "ItemCopied"}));
  EXPECT_EQ(superseded, std::vector<Record>{first});
  ASSERT_EQ(added.size(), 1U);
  EXPECT_NE(added[0]->id(), first->id());
  EXPECT_GT(added[0]->creationDate(), first->creationDate());
  EXPECT_EQ(added[0]->timesPasted(), 3);
  EXPECT_EQ(added[0]->sourceAppBundleIdentifier(), "first");
}

TEST_F(ClipboardManagerTest, MakesTwoRecordsOfTheSameTextWithDifferentTypes) {
  startListening();
  copyText("text");
  store();

  copy({{plainText, "text"}, {html, "<b>text</b>"}});

  EXPECT_EQ(log, (std::vector<std::string>{"new", "ItemCopied"}));
}

TEST_F(ClipboardManagerTest, TakesARecordOfAnotherContentWithTheSameDigestForNoDuplicate) {
  startListening();
  // Name and bytes follow each other in the digest without a mark between them.
  copy({{plainText, "text"}, {"x", "yz"}});
  store();

  copy({{plainText, "text"}, {"xy", "z"}});

  EXPECT_TRUE(superseded.empty());
  EXPECT_EQ(added.size(), 1U);
}

TEST_F(ClipboardManagerTest, ReplacesTheRecordThatACopySaysToModifyWithoutASound) {
  startListening();
  copyText("before");
  added[0]->setTimesPasted(2);
  const auto before = added[0];
  const auto count = std::to_string(pasteboard.changeCount());
  store();

  copy({{plainText, "after"}, {std::string(pasteboardtype::modified), count}});

  EXPECT_EQ(log, (std::vector<std::string>{"duplicate", "new"}));
  EXPECT_EQ(superseded, std::vector<Record>{before});
  ASSERT_EQ(added.size(), 1U);
  EXPECT_EQ(bytesOf(*added[0], plainText), "after");
  EXPECT_EQ(added[0]->timesPasted(), 2);
}

TEST_F(ClipboardManagerTest, TakesACopyThatModifiesAnUnknownOneAsNew) {
  startListening();

  copy({{plainText, "text"}, {std::string(pasteboardtype::modified), "4711"}});

  EXPECT_EQ(log, (std::vector<std::string>{"new", "ItemCopied"}));
}

TEST_F(ClipboardManagerTest, KnowsNothingOfTheChangeCountsOfAnEarlierRun) {
  startListening();
  copyText("before");
  const auto count = std::to_string(pasteboard.changeCount());
  store();
  ClipboardManager nextRun(
      {pasteboard, context, bundleProvider, pasteStep, runLoop, notificationCenter, settings.defaults, ignoredApps});
  std::vector<std::string> told;
  subscriptions.push_back(nextRun.newItemPublisher().subscribe([&told](const Record&) { told.emplace_back("new"); }));
  subscriptions.push_back(
      nextRun.duplicateItemPublisher().subscribe([&told](const Record&) { told.emplace_back("duplicate"); }));
  nextRun.startListening();

  copy({{plainText, "after"}, {std::string(pasteboardtype::modified), count}});

  EXPECT_EQ(told, std::vector<std::string>{"new"});
}

TEST_F(ClipboardManagerTest, MergesARecordTwiceThatIsBothDuplicateAndModified) {
  startListening();
  const auto modifiedCount = std::to_string(pasteboard.changeCount() + 1);
  copy({{plainText, "text"}, {std::string(pasteboardtype::modified), modifiedCount}});
  added[0]->setTimesPasted(2);
  store();

  copy({{plainText, "text"}, {std::string(pasteboardtype::modified), modifiedCount}});

  EXPECT_EQ(log, (std::vector<std::string>{"duplicate", "duplicate", "new"}));
  EXPECT_EQ(added.at(0)->timesPasted(), 4);
}

TEST_F(ClipboardManagerTest, LosesACopyWhoseDuplicateCantBeLookedUpAndSaysWhy) {
  startListening();
  context.failFetches(foundation::Error{"disk on fire"});
  testing::internal::CaptureStdout();

  copyText("hello");

  const auto output = testing::internal::GetCapturedStdout();
  EXPECT_NE(output.find("could not add new item: disk on fire\n"), std::string::npos);
  EXPECT_TRUE(log.empty());
}

TEST_F(ClipboardManagerTest, LeavesADuplicateRemovedWhenTheModifiedRecordCantBeLookedUp) {
  startListening();
  const auto modifiedCount = std::to_string(pasteboard.changeCount() + 1);
  copy({{plainText, "text"}, {std::string(pasteboardtype::modified), modifiedCount}});
  store();
  context.failFetchesById(foundation::Error{"disk on fire"});

  copy({{plainText, "text"}, {std::string(pasteboardtype::modified), modifiedCount}});

  EXPECT_EQ(log, std::vector<std::string>{"duplicate"});
}

TEST_F(ClipboardManagerTest, DropsACopyOfAnIgnoredApplicationAndSaysSo) {
  startListening();
  settings.defaults.set(keys::ignoredApps, {"file:///apps/keys.desktop"});
  bundles.add("file:///apps/keys.desktop", {.identifier = "org.example.Keys", .displayName = "Keys"});
  bundleProvider.setFrontmostBundle({"org.example.Keys", std::nullopt});
  testing::internal::CaptureStdout();

  copyText("hello");

  EXPECT_EQ(testing::internal::GetCapturedStdout(), "ignoring clip from ignored app org.example.Keys\n");
  EXPECT_TRUE(added.empty());
}

TEST_F(ClipboardManagerTest, DropsACopyOfTheBuiltInIgnoredApplicationFromTheFirstRunOn) {
  startListening();
  bundleProvider.setFrontmostBundle({"com.apple.keychainaccess", std::nullopt});

  copyText("hello");

  EXPECT_TRUE(added.empty());
}

TEST_F(ClipboardManagerTest, KeepsACopyOfAnApplicationThatIsNotIgnored) {
  startListening();
  settings.defaults.set(keys::ignoredApps, {"file:///apps/keys.desktop"});
  bundles.add("file:///apps/keys.desktop", {.identifier = "org.example.Keys", .displayName = "Keys"});
  bundleProvider.setFrontmostBundle({"org.example.KeysAndLocks", std::nullopt});

  copyText("hello");

  EXPECT_EQ(added.size(), 1U);
}

TEST_F(ClipboardManagerTest, KeepsACopyOfAnUnknownApplication) {
  startListening();

  copyText("hello");

  ASSERT_EQ(added.size(), 1U);
  EXPECT_EQ(added[0]->sourceAppBundleIdentifier(), std::nullopt);
  EXPECT_EQ(added[0]->sourceAppBundleURL(), std::nullopt);
}

TEST_F(ClipboardManagerTest, WritesAllTypesAndItsMarker) {
  const ClipboardItem item({{plainText, foundation::Data("text")}, {html, std::nullopt}}, {}, {}, runLoop.date());

  manager.writeToPasteboard(item, ClipboardManaging::RemoveFormatting::no);
  runLoop.runPosted();

  ASSERT_EQ(pasteboard.writes().size(), 1U);
  EXPECT_EQ(pasteboard.writes()[0].types(), (std::vector<std::string>{marker, html, plainText}));
  EXPECT_EQ(*pasteboard.writes()[0].representations[0].data, foundation::Data());
  EXPECT_EQ(pasteboard.writes()[0].representations[1].data, std::nullopt);
}

TEST_F(ClipboardManagerTest, WritesThePlainTextAloneWithoutFormatting) {
  const ClipboardItem item({{plainText, foundation::Data("text")}, {html, foundation::Data("<b>")}}, {}, {},
                           runLoop.date());

  manager.writeToPasteboard(item, ClipboardManaging::RemoveFormatting::yes);
  runLoop.runPosted();

  EXPECT_EQ(pasteboard.writes().at(0).types(), (std::vector<std::string>{marker, plainText}));
}

TEST_F(ClipboardManagerTest, WritesAllTypesOfAnItemWithoutPlainText) {
  const ClipboardItem item({{html, foundation::Data("<b>")}}, {}, {}, runLoop.date());

  manager.writeToPasteboard(item, ClipboardManaging::RemoveFormatting::yes);
  runLoop.runPosted();

  EXPECT_EQ(pasteboard.writes().at(0).types(), (std::vector<std::string>{marker, html}));
}

TEST_F(ClipboardManagerTest, WritesADerivedTextWithItsMarker) {
  manager.writeToPasteboard(foundation::Data("#ff0000"));
  runLoop.runPosted();

  EXPECT_EQ(pasteboard.writes().at(0).types(), (std::vector<std::string>{marker, plainText}));
  EXPECT_EQ(pasteboard.writes().at(0).dataForType(plainText), foundation::Data("#ff0000"));
}

TEST_F(ClipboardManagerTest, CapturesItsOwnWriteAgainAsAFurtherRecord) {
  startListening();
  copyText("text");
  const auto first = added[0];
  store();

  manager.writeToPasteboard(*first, ClipboardManaging::RemoveFormatting::no);
  poll();
  EXPECT_EQ(log, (std::vector<std::string>{"new", "ItemCopied"}));
  const auto second = added.at(0);
  store();
  manager.writeToPasteboard(*second, ClipboardManaging::RemoveFormatting::no);
  poll();

  EXPECT_EQ(log, (std::vector<std::string>{"duplicate", "new", "ItemCopied"}));
}

TEST_F(ClipboardManagerTest, HandsThePasteStepItselfAsTheSender) {
  manager.pasteIntoFrontmostApplication();

  EXPECT_EQ(pasteStep.senders(), std::vector<const void*>{&manager});
}

TEST(PasteboardName, IsTheDesktopsUnlessTheProgramIsDriven) {
  EXPECT_EQ(pasteboardName({}), std::nullopt);
  EXPECT_EQ(pasteboardName({"quillmonger", "--enable-ui-testing"}), std::nullopt);
  EXPECT_EQ(pasteboardName({"quillmonger", "enable-ui-testing"}), "ui-testing");
}

}  // namespace
