#include "Quillmonger/update/feed/Appcast.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using quillmonger::SoftwareVersion;
using quillmonger::Update;
namespace appcast = quillmonger::appcast;

const std::string digest(64, 'a');

std::string enclosure(const std::string& version, const std::string& url = "https://example.org/file.deb",
                      const std::string& length = "1000", const std::string& sha256 = digest) {
  return "<enclosure url=\"" + url + "\" length=\"" + length + "\" type=\"application/octet-stream\"" +
         " quillmonger:version=\"" + version + "\" quillmonger:sha256=\"" + sha256 + "\"/>";
}

std::string item(const std::string& version, const std::string& notes = "New.") {
  return "<item><title>Quillmonger</title><description>" + notes + "</description>" + enclosure(version) + "</item>";
}

std::string feed(const std::string& items) {
  return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<rss version=\"2.0\"><channel><title>Quillmonger</title>"
         "<description>of the channel</description>" +
         items + "</channel></rss>\n";
}

std::vector<std::string> versions(const std::string& text) {
  std::vector<std::string> found;
  const auto updates = appcast::parse(text);
  for (const auto& update : updates.value())
    found.push_back(update.version);
  return found;
}

TEST(Appcast, GivesEachItem) {
  const auto updates = appcast::parse(feed(item("1.0") + item("2.0", "Much <![CDATA[<new>]]> &amp; better.")));

  ASSERT_TRUE(updates.has_value());
  ASSERT_EQ(updates->size(), 2U);
  EXPECT_EQ(updates->back(), (Update{"2.0", "Much <new> & better.",
                                     *foundation::Url::parse("https://example.org/file.deb"), 1000, digest}));
}

TEST(Appcast, TakesNoNotesFromElsewhere) {
  const auto updates = appcast::parse(feed("<item>" + enclosure("1.0") + "</item>"));

  EXPECT_EQ(updates->front().notes, "");
}

TEST(Appcast, IsEmptyWithoutItems) { EXPECT_TRUE(appcast::parse(feed(""))->empty()); }

TEST(Appcast, CutsLongNotesBetweenTwoCharacters) {
  std::string notes = "x";
  while (notes.size() <= appcast::notesLimit)
    notes += "ü";

  const auto updates = appcast::parse(feed(item("1.0", notes)));

  EXPECT_EQ(updates->front().notes, notes.substr(0, appcast::notesLimit - 1));
}

TEST(Appcast, ReadsABoundedNumberOfItems) {
  std::string items;
  for (std::size_t count = 0; count <= appcast::itemLimit; ++count)
    items += item("1." + std::to_string(count));

  EXPECT_EQ(versions(feed(items)).size(), appcast::itemLimit);
}

class UnusableItem : public testing::TestWithParam<std::string> {};

TEST_P(UnusableItem, IsPassedOver) {
  const auto text = feed("<item>" + GetParam() + "</item>" + item("1.5"));

  EXPECT_EQ(versions(text), std::vector<std::string>{"1.5"});
}

INSTANTIATE_TEST_SUITE_P(
    Of, UnusableItem,
    testing::Values("", "<enclosure/>", enclosure("not a version"), enclosure("2.0", "http://example.org/file.deb"),
                    enclosure("2.0", "file:///etc/passwd"), enclosure("2.0", "no url"),
                    enclosure("2.0", "https://example.org/" + std::string(Update::addressLimit, 'x')),
                    enclosure("2.0", ""), enclosure("2.0", "https://example.org/file.deb", "0"),
                    enclosure("2.0", "https://example.org/file.deb", "-1"),
                    enclosure("2.0", "https://example.org/file.deb", "many"),
                    enclosure("2.0", "https://example.org/file.deb", "9999999999999"),
                    enclosure("2.0", "https://example.org/file.deb", "1000", "abc"),
                    enclosure("2.0", "https://example.org/file.deb", "1000", std::string(64, 'Z'))));

class DamagedFeed : public testing::TestWithParam<std::string> {};

TEST_P(DamagedFeed, IsNoFeed) { EXPECT_FALSE(appcast::parse(GetParam()).has_value()); }

INSTANTIATE_TEST_SUITE_P(Of, DamagedFeed,
                         testing::Values("", "no xml", "<rss>", "<rss></channel></rss>", "<rss a=\"&unknown;\"/>",
                                         "<rss>\xFF</rss>", feed(item("1.0")).substr(0, 200)));

// No entity is expanded, so none can be expanded a billion times.
TEST(Appcast, KnowsNoEntitiesOfTheFeedsOwn) {
  EXPECT_FALSE(appcast::parse("<!DOCTYPE rss [<!ENTITY a \"aaaa\">]>" + feed(item("1.0", "&a;"))).has_value());
}

TEST(Appcast, BearsDeepNesting) {
  std::string opened;
  std::string closed;
  for (int depth = 0; depth < 50'000; ++depth) {
    opened += "<a>";
    closed += "</a>";
  }

  EXPECT_EQ(versions(feed(opened + closed + item("1.0"))), std::vector<std::string>{"1.0"});
}

TEST(AppcastNewest, IsTheGreatestVersionWhereverItStands) {
  const auto updates = appcast::parse(feed(item("1.9") + item("1.10") + item("1.2"))).value();

  EXPECT_EQ(appcast::newest(updates, *SoftwareVersion::parse("1.0"))->version, "1.10");
}

TEST(AppcastNewest, IsAbsentWhenTheOwnVersionIsTheSameOrNewer) {
  const auto updates = appcast::parse(feed(item("1.1"))).value();

  EXPECT_FALSE(appcast::newest(updates, *SoftwareVersion::parse("1.1")).has_value());
  EXPECT_FALSE(appcast::newest(updates, *SoftwareVersion::parse("1.1.0")).has_value());
  EXPECT_FALSE(appcast::newest(updates, *SoftwareVersion::parse("2.0")).has_value());
  EXPECT_FALSE(appcast::newest({}, *SoftwareVersion::parse("1.0")).has_value());
}

}  // namespace
