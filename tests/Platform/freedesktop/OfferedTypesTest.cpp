#include "Platform/freedesktop/OfferedTypes.h"

#include <gtest/gtest.h>

namespace platform {

namespace {

using Names = std::vector<std::string>;
using Values = std::vector<std::optional<foundation::Data>>;

Names askedFor(const OfferedTypes& offered) {
  Names names;
  for (const auto& request : offered.requests())
    names.insert(names.end(), request.names.begin(), request.names.end());
  return names;
}

std::string text(const quillmonger::PasteboardItem& item, std::string_view type) {
  const auto data = item.dataForType(type);
  return data ? *data->bytes() : "absent";
}

}  // namespace

TEST(OfferedTypes, AsksForTextByTheBestNameFirst) {
  const OfferedTypes offered({"STRING", "text/plain", "UTF8_STRING", "text/plain;charset=utf-8"});

  EXPECT_EQ(offered.types(), Names{"public.utf8-plain-text"});
  EXPECT_EQ(askedFor(offered), (Names{"UTF8_STRING", "text/plain;charset=utf-8", "text/plain", "STRING"}));
}

TEST(OfferedTypes, KnowsAMimeNameHoweverItIsSpelled) {
  const OfferedTypes offered({"TEXT/Plain; Charset=\"UTF-8\""});

  EXPECT_EQ(offered.types(), Names{"public.utf8-plain-text"});
  EXPECT_EQ(askedFor(offered), Names{"TEXT/Plain; Charset=\"UTF-8\""});
}

TEST(OfferedTypes, ReadsNoFurtherEncodingOfTheText) {
  EXPECT_EQ(OfferedTypes({"UTF8_STRING", "text/plain;charset=utf-16"}).types(), Names{"public.utf8-plain-text"});
  EXPECT_EQ(OfferedTypes({"text/plain;charset=utf-16"}).types(), Names{"text/plain;charset=utf-16"});
}

TEST(OfferedTypes, TranslatesEachKnownName) {
  const OfferedTypes offered({"text/html", "text/rtf", "application/rtf", "image/png"});

  EXPECT_EQ(offered.types(), (Names{"public.html", "public.rtf", "public.png"}));
  EXPECT_EQ(askedFor(offered), (Names{"text/html", "text/rtf", "application/rtf", "image/png"}));
}

TEST(OfferedTypes, KeepsANameWithoutIdentifier) {
  const OfferedTypes offered({"application/x-example", "com.example.type", "x-special/gnome-copied-files"});

  EXPECT_EQ(offered.types(), (Names{"application/x-example", "com.example.type", "x-special/gnome-copied-files"}));
}

TEST(OfferedTypes, LeavesOutTargetsOfTheProtocolAndOfToolkits) {
  const OfferedTypes offered({"TARGETS", "TIMESTAMP", "MULTIPLE", "SAVE_TARGETS", "DELETE", "INSERT_SELECTION",
                              "INSERT_PROPERTY", "COMPOUND_TEXT", "TEXT", "GTK_TEXT_BUFFER_CONTENTS", "_VIM_TEXT",
                              "chromium/x-internal-source-rfh-token"});

  EXPECT_TRUE(offered.types().empty());
}

TEST(OfferedTypes, LeavesOutNamesThatNoProgramMeans) {
  EXPECT_TRUE(OfferedTypes({"", "text/\x01", std::string(5000, '/'), "caf\xE9/x"}).types().empty());
}

TEST(OfferedTypes, LeavesOutAnIdentifierThatIsReadByItsNames) {
  EXPECT_EQ(OfferedTypes({"public.png", "image/png"}).types(), Names{"public.png"});
  EXPECT_TRUE(OfferedTypes({"public.file-url"}).types().empty());
}

TEST(OfferedTypes, ReadsTheBestEncodingOfAPicture) {
  EXPECT_EQ(askedFor(OfferedTypes({"image/bmp", "image/tiff", "image/jpeg", "image/png", "image/webp"})),
            Names{"image/png"});
  EXPECT_EQ(askedFor(OfferedTypes({"image/tiff", "image/x-icon", "image/jpeg"})), Names{"image/jpeg"});
  EXPECT_EQ(askedFor(OfferedTypes({"image/tiff", "image/bmp"})), Names{"image/tiff"});
  EXPECT_EQ(askedFor(OfferedTypes({"image/webp", "image/bmp"})), (Names{"image/webp", "image/bmp"}));
}

TEST(OfferedTypes, KeepsADrawingBesideItsPicture) {
  EXPECT_EQ(OfferedTypes({"image/svg+xml", "image/png"}).types(), (Names{"image/svg+xml", "public.png"}));
}

TEST(OfferedTypes, NeverAsksForOfficeLinksAndObjects) {
  const OfferedTypes offered(
      {"application/x-openoffice-link;windows_formatname=\"Link\"",
       "application/x-openoffice-embed-source-xml;windows_formatname=\"Star Embed Source (XML)\"",
       "application/x-openoffice-objectdescriptor-xml",
       "application/x-example;"
       "windows_formatname=\"Link Source\"",
       "UTF8_STRING"});

  EXPECT_EQ(askedFor(offered), Names{"UTF8_STRING"});
  EXPECT_EQ(offered.types(), Names{"public.utf8-plain-text"});
}

TEST(OfferedTypes, DoesNotReadPicturesThatAnOfficeProgramRendersFromText) {
  EXPECT_EQ(OfferedTypes({"application/x-openoffice-link", "image/png", "image/bmp", "UTF8_STRING"}).types(),
            Names{"public.utf8-plain-text"});
  EXPECT_EQ(OfferedTypes({"application/x-openoffice-drawing", "image/png"}).types(), Names{"public.png"});
}

TEST(OfferedTypes, TakesThePresenceOfThePasswordHintForASecret) {
  const OfferedTypes offered({"UTF8_STRING", "x-kde-passwordManagerHint"});

  EXPECT_EQ(offered.types(), (Names{"public.utf8-plain-text", "org.nspasteboard.ConcealedType"}));
  EXPECT_EQ(askedFor(offered), Names{"UTF8_STRING"});
  const auto items = offered.items(Values{foundation::Data("words"), std::nullopt});
  EXPECT_EQ(text(items.front(), "org.nspasteboard.ConcealedType"), "");
}

TEST(OfferedTypes, CountsAListOfUrlsAsFilesBeforeItIsRead) {
  EXPECT_EQ(OfferedTypes({"text/uri-list"}).types(), (Names{"public.file-url", "text/uri-list"}));
}

TEST(OfferedTypes, MakesAnItemOfEachFile) {
  const OfferedTypes offered({"text/uri-list", "UTF8_STRING"});

  const auto items = offered.items(Values{
      foundation::Data("#comment\r\nfile:///a\r\nFILE:///b%20c\nhttps://example.org/\r\n"), foundation::Data("words")});

  ASSERT_EQ(items.size(), 3U);
  EXPECT_EQ(items[0].types(), (Names{"public.file-url", "text/uri-list", "public.utf8-plain-text"}));
  EXPECT_EQ(text(items[0], "public.file-url"), "file:///a");
  EXPECT_EQ(text(items[0], "public.utf8-plain-text"), "words");
  EXPECT_EQ(items[1].types(), Names{"public.file-url"});
  EXPECT_EQ(text(items[1], "public.file-url"), "FILE:///b%20c");
  EXPECT_EQ(items[2].types(), Names{"public.url"});
  EXPECT_EQ(text(items[2], "public.url"), "https://example.org/");
}

TEST(OfferedTypes, KeepsTheWholeListBesideItsFiles) {
  const OfferedTypes offered({"text/uri-list", "x-special/gnome-copied-files", "application/x-kde-cutselection"});

  const auto items = offered.items(Values{foundation::Data("file:///a\r\nfile:///b\r\n"),
                                          foundation::Data("cut\nfile:///a"), foundation::Data("1")});

  EXPECT_EQ(text(items[0], "text/uri-list"), "file:///a\r\nfile:///b\r\n");
  EXPECT_EQ(text(items[0], "x-special/gnome-copied-files"), "cut\nfile:///a");
  EXPECT_EQ(text(items[0], "application/x-kde-cutselection"), "1");
}

TEST(OfferedTypes, LeavesAFileAbsentWhenTheListCouldNotBeRead) {
  const auto items = OfferedTypes({"text/uri-list"}).items(Values{std::nullopt});

  ASSERT_EQ(items.size(), 1U);
  EXPECT_EQ(items[0].types(), (Names{"public.file-url", "text/uri-list"}));
  EXPECT_EQ(text(items[0], "public.file-url"), "absent");
}

TEST(OfferedTypes, TakesAListWithoutUrlsForNoFile) {
  const auto items = OfferedTypes({"text/uri-list"}).items(Values{foundation::Data("/not a url")});

  EXPECT_EQ(items[0].types(), Names{"text/uri-list"});
}

TEST(OfferedTypes, ReadsLatin1UnderItsOneName) {
  const OfferedTypes::Request request{"public.utf8-plain-text", {"STRING"}};

  EXPECT_EQ(OfferedTypes::decode(request, "STRING", "caf\xE9"), "caf\xC3\xA9");
}

TEST(OfferedTypes, RefusesTextThatIsIllFormed) {
  const OfferedTypes::Request request{"public.utf8-plain-text", {"UTF8_STRING", "text/plain"}};

  EXPECT_EQ(OfferedTypes::decode(request, "UTF8_STRING", "\xC3"), std::nullopt);
  EXPECT_EQ(OfferedTypes::decode(request, "text/plain", "caf\xE9"), std::nullopt);
  EXPECT_EQ(OfferedTypes::decode(request, "text/plain", "caf\xC3\xA9"), "caf\xC3\xA9");
}

TEST(OfferedTypes, KeepsUtf16HtmlAsItIs) {
  const OfferedTypes::Request request{"public.html", {"text/html"}};
  const std::string bytes("\xFF\xFE<\0p\0>\0", 8);

  EXPECT_EQ(OfferedTypes::decode(request, "text/html", bytes), bytes);
}

TEST(OfferedTypes, BoundsTheNumberOfTypes) {
  Names names;
  for (int index = 0; index < 100'000; ++index)
    names.push_back("application/x-" + std::to_string(index));

  EXPECT_EQ(OfferedTypes(names).types().size(), 256U);
}

}  // namespace platform
