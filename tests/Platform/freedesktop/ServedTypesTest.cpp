#include "Platform/freedesktop/ServedTypes.h"

#include <gtest/gtest.h>

#include <utility>

namespace platform {

namespace {

using Names = std::vector<std::string>;

quillmonger::PasteboardItem item(const std::vector<std::pair<std::string, std::optional<std::string>>>& values) {
  quillmonger::PasteboardItem result;
  for (const auto& [type, value] : values) {
    result.representations.push_back({type, value ? std::optional(foundation::Data(*value)) : std::nullopt});
  }
  return result;
}

std::string served(const ServedTypes& types, std::string_view name) {
  const auto bytes = types.bytes(name);
  return bytes ? *bytes : "refused";
}

}  // namespace

TEST(ServedTypes, OffersTextUnderEveryTextName) {
  const ServedTypes types({item({{"public.utf8-plain-text", "caf\xC3\xA9 \xE2\x82\xAC \xF0\x9F\x98\x80"}})});

  EXPECT_EQ(types.names(), (Names{"UTF8_STRING", "text/plain;charset=utf-8", "text/plain", "TEXT", "STRING"}));
  EXPECT_EQ(served(types, "text/plain"), "caf\xC3\xA9 \xE2\x82\xAC \xF0\x9F\x98\x80");
  EXPECT_EQ(served(types, "STRING"), "caf\xE9 ? ?");
}

TEST(ServedTypes, SurvivesIllFormedTextInLatin1) {
  const ServedTypes types({item({{"public.utf8-plain-text", "a\xC3"}})});

  EXPECT_EQ(served(types, "STRING"), "a?");
}

TEST(ServedTypes, OffersEachTypeUnderItsNames) {
  const ServedTypes types({item({{"public.html", "<p>"},
                                 {"public.rtf", "{}"},
                                 {"public.png", "p"},
                                 {"public.jpeg", "j"},
                                 {"public.tiff", "t"}})});

  EXPECT_EQ(types.names(),
            (Names{"text/html", "text/rtf", "application/rtf", "image/png", "image/jpeg", "image/tiff"}));
  EXPECT_EQ(served(types, "application/rtf"), "{}");
}

TEST(ServedTypes, OffersOtherTypesUnderTheirOwnName) {
  const ServedTypes types({item({{"com.ondalis.Quillmonger", ""}, {"application/x-example", "x"}})});

  EXPECT_EQ(types.names(), (Names{"com.ondalis.Quillmonger", "application/x-example"}));
  EXPECT_EQ(served(types, "com.ondalis.Quillmonger"), "");
}

TEST(ServedTypes, ServesTheListOfFilesThatWasKept) {
  const ServedTypes types({item({{"public.file-url", "file:///b"}, {"text/uri-list", "file:///a\r\nfile:///b\r\n"}})});

  EXPECT_EQ(types.names(), Names{"text/uri-list"});
  EXPECT_EQ(served(types, "text/uri-list"), "file:///a\r\nfile:///b\r\n");
}

TEST(ServedTypes, MakesAListOfUrlsThatWereKeptAlone) {
  const ServedTypes types({item({{"public.file-url", "file:///a"}}), item({{"public.url", "https://b"}})});

  EXPECT_EQ(types.names(), Names{"text/uri-list"});
  EXPECT_EQ(served(types, "text/uri-list"), "file:///a\r\nhttps://b\r\n");
}

TEST(ServedTypes, MarksASecretForOthers) {
  const ServedTypes types({item({{"org.nspasteboard.ConcealedType", ""}})});

  EXPECT_EQ(served(types, "x-kde-passwordManagerHint"), "secret");
}

TEST(ServedTypes, OffersAnAbsentValueAndRefusesIt) {
  const ServedTypes types({item({{"public.html", std::nullopt}})});

  EXPECT_EQ(types.names(), Names{"text/html"});
  EXPECT_EQ(served(types, "text/html"), "refused");
}

TEST(ServedTypes, RefusesWhatIsNotOffered) { EXPECT_EQ(served(ServedTypes({}), "text/html"), "refused"); }

}  // namespace platform
