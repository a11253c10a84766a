#include "Quillmonger/detection/JsonDetector.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "Quillmonger/detection/JsonReader.h"

namespace quillmonger {

namespace {

using JsonResult = JsonDetector::JsonResult;
using namespace std::string_view_literals;

bool isJson(std::string_view text) { return JsonDetector().detect(text) != nullptr; }

// What the detector prints about `text`.
std::string printedFor(std::string_view text) {
  testing::internal::CaptureStdout();
  EXPECT_FALSE(isJson(text));
  return testing::internal::GetCapturedStdout();
}

std::string nested(std::size_t depth) { return std::string(depth, '[') + std::string(depth, ']'); }

TEST(JsonDetectorTest, AnEmptyObjectOrArrayIsJson) {
  for (const auto* const text : {"{}", "[]", "{ }", "[\n]", "{\t\r\n }"})
    EXPECT_TRUE(isJson(text)) << text;
}

TEST(JsonDetectorTest, WithoutBothBracketsATextIsNotEvenRead) {
  for (const auto text :
       {""sv, "{"sv, "}"sv, "["sv, "]"sv, "{]"sv, "[}"sv, "[1,2"sv, " []"sv, "[]\n"sv, "}{"sv, "a[]"sv})
    EXPECT_EQ(printedFor(text), "") << text;
}

TEST(JsonDetectorTest, AValueThatIsNoContainerIsNotJsonHere) {
  for (const auto text : {"1"sv, "\"a\""sv, "true"sv, "null"sv})
    EXPECT_EQ(printedFor(text), "") << text;
}

TEST(JsonDetectorTest, ABracketWithAMarkOnItIsAnotherCharacter) {
  EXPECT_EQ(printedFor("{\u0301}"), "");
  EXPECT_EQ(printedFor("[\u200D]"), "");
  EXPECT_EQ(printedFor("{\u0600}"), "");
  EXPECT_NE(printedFor("{é}"), "");
}

TEST(JsonDetectorTest, WhatTheReaderRefusesIsPrintedWithoutTheText) {
  EXPECT_EQ(printedFor("[1,2,]"), "could not JSON deserialize: Invalid value. At byte 5.\n");
  EXPECT_EQ(printedFor("{secret}"), "could not JSON deserialize: Missing a name for object member. At byte 1.\n");
  EXPECT_EQ(printedFor("[secret]").find("secret"), std::string::npos);
  EXPECT_EQ(printedFor(R"({"secret" "word"})").find("secret"), std::string::npos);
  EXPECT_EQ(printedFor(R"(["secret\x"])").find("secret"), std::string::npos);
}

TEST(JsonDetectorTest, AKeyWithoutQuotesIsRefused) {
  EXPECT_NE(printedFor("{a}"), "");
  EXPECT_NE(printedFor("{a:1}"), "");
}

TEST(JsonDetectorTest, OnlyTheGrammarOfJsonIsRead) {
  for (const auto text : {"[1,]"sv,
                          "[,1]"sv,
                          "{\"a\":1,}"sv,
                          "{a:1}"sv,
                          "{'a':1}"sv,
                          "[01]"sv,
                          "[+1]"sv,
                          "[1.]"sv,
                          "[.5]"sv,
                          "[1e]"sv,
                          "[NaN]"sv,
                          "[Infinity]"sv,
                          "[-]"sv,
                          "[nul]"sv,
                          "[True]"sv,
                          "[1 2]"sv,
                          "{\"a\" 1}"sv,
                          "{\"a\":}"sv,
                          "{1:2}"sv,
                          "[][]"sv,
                          "{}{}"sv,
                          "[/* */]"sv,
                          "[1]//]"sv,
                          "[\"\n\"]"sv,
                          "[\"\\x\"]"sv,
                          "[\"\\u12\"]"sv,
                          "[\"]"sv,
                          "[0x10]"sv,
                          "{\"a\":1 \"b\":2}"sv,
                          "[\u00A0]"sv,
                          "[1]\0]"sv,
                          "[\"\0\"]"sv,
                          "[]\0[]"sv,
                          "[\"a\tb\"]"sv}) {
    EXPECT_NE(printedFor(text), "") << text;
  }
}

TEST(JsonDetectorTest, ASurrogateAloneIsRefused) {
  EXPECT_TRUE(isJson(R"(["\uD83D\uDE42"])"));
  for (const auto text : {R"(["\uD83D"])"sv, R"(["\uDE42"])"sv, R"(["\uDE42\uD83D"])"sv, R"(["\uD83Da"])"sv,
                          R"({"\uDC00":1})"sv, R"(["\uD83D\u0041"])"sv}) {
    EXPECT_NE(printedFor(text), "") << text;
  }
  EXPECT_TRUE(isJson("[\"한\"]"));  // begins with the same byte as a surrogate would
}

TEST(JsonDetectorTest, IllFormedUtf8IsRefused) {
  for (const auto text : {"[\"\xFF\"]"sv, "[\"\xC0\x80\"]"sv, "[\"\xED\xA0\x80\"]"sv, "[\"\xF4\x90\x80\x80\"]"sv,
                          "[\"\xC3\"]"sv, "[\xC3\xA9]"sv, "[\x80]"sv}) {
    EXPECT_NE(printedFor(text), "");
  }
}

TEST(JsonDetectorTest, NestingIsBounded) {
  EXPECT_TRUE(isJson(nested(deepestJson)));
  EXPECT_EQ(printedFor(nested(deepestJson + 1)),
            "could not JSON deserialize: The values are nested too deeply. At byte 513.\n");
  EXPECT_NE(printedFor(nested(1'000'000)), "");
  EXPECT_NE(printedFor(std::string(1'000'000, '[') + "]"), "");
}

TEST(JsonDetectorTest, DepthIsCountedFromTheOpenContainersOnly) {
  std::string text = "[";
  for (std::size_t i = 0; i < 2 * deepestJson; ++i)
    text += "[{}],";
  EXPECT_TRUE(isJson(text + "0]"));
}

TEST(JsonDetectorTest, TheResultKeepsTheTextExactly) {
  constexpr std::string_view text = "{ \"a\" :\t1,\n \"a\" : 2 }";
  const auto result = JsonDetector().detect(text);
  ASSERT_NE(result, nullptr);
  EXPECT_EQ(dynamic_cast<const JsonResult&>(*result).json, text);
}

TEST(JsonResultTest, MinifiedHasNoWhiteSpaceBetweenValues) {
  EXPECT_EQ(JsonResult("{ \"a\" : 1 }").minified(), "{\"a\":1}");
  EXPECT_EQ(JsonResult("[ 1 , [ ] , { } , \" a \" ]").minified(), "[1,[],{},\" a \"]");
  EXPECT_EQ(JsonResult("{}").minified(), "{}");
  EXPECT_EQ(JsonResult("[ true, false, null ]").minified(), "[true,false,null]");
}

TEST(JsonResultTest, BeautifiedHasALineAValueAndTwoSpacesALevel) {
  EXPECT_EQ(JsonResult(R"({"b":1,"a":[true,{"c":null},[],{}],"d":{"e":"f"}})").beautified(), R"({
  "b" : 1,
  "a" : [
    true,
    {
      "c" : null
    },
    [],
    {}
  ],
  "d" : {
    "e" : "f"
  }
})");
  EXPECT_EQ(JsonResult("[ ]").beautified(), "[]");
  EXPECT_EQ(JsonResult("{ }").beautified(), "{}");
}

TEST(JsonResultTest, MinifyingTheBeautifiedGivesTheCompactFormBack) {
  const JsonResult result(R"({"b":[1,2,{"c":[[]]}],"a":"x\ny"})");
  EXPECT_EQ(JsonResult(*result.beautified()).minified(), result.minified());
  EXPECT_EQ(result.minified(), result.json);
}

TEST(JsonResultTest, NumbersKeepTheirDigits) {
  constexpr auto text = "[1.10,-0,0.0,1E+5,1e-400,123456789012345678901234567890,0.1234567890123456789012345678901]";
  EXPECT_EQ(JsonResult(text).minified(), text);
}

TEST(JsonResultTest, KeysKeepTheirOrderEvenWhenTheyRepeat) {
  EXPECT_EQ(JsonResult(R"({"b":1,"a":2,"b":3})").minified(), R"({"b":1,"a":2,"b":3})");
}

TEST(JsonResultTest, SlashesQuotesAndControlCharactersAreEscapedAndNothingElse) {
  EXPECT_EQ(JsonResult(R"(["a/b","a\/b","\u0022\u005c\u002f"])").minified(), R"(["a\/b","a\/b","\"\\\/"])");
  EXPECT_EQ(JsonResult(R"(["\b\f\n\r\t\u0000\u001F\u007f"])").minified(), "[\"\\b\\f\\n\\r\\t\\u0000\\u001f\x7F\"]");
  EXPECT_EQ(JsonResult(R"(["\u00e9\ud83d\ude42é🙂"])").minified(), R"(["é🙂é🙂"])");
  EXPECT_EQ(JsonResult(R"({"a/\u0001":1})").beautified(), "{\n  \"a\\/\\u0001\" : 1\n}");
}

TEST(JsonResultTest, ATextThatIsNoJsonIsNotRewritten) {
  testing::internal::CaptureStdout();
  EXPECT_EQ(JsonResult("[1,]").beautified(), std::nullopt);
  EXPECT_EQ(JsonResult("[1,]").minified(), std::nullopt);
  EXPECT_EQ(testing::internal::GetCapturedStdout(),
            "Error pretty printing JSON: Invalid value. At byte 3.\n"
            "Error compacting JSON to one line: Invalid value. At byte 3.\n");
}

TEST(JsonReaderTest, StopsWhenTheResultPassesItsLimit) {
  // Each number stands on a line of a kilobyte.
  const std::string text = std::string(deepestJson, '[') + "1,1,1,1" + std::string(deepestJson, ']');
  const auto errorWithin = [&text](JsonStyle style, std::size_t limit) {
    JsonWriter writer(style, limit);
    return rewriteJson(text, writer).value_or("none");
  };

  EXPECT_EQ(errorWithin(JsonStyle::oneLine, text.size()), "none");
  EXPECT_EQ(errorWithin(JsonStyle::prettyPrinted, 1'000'000), "none");
  EXPECT_EQ(errorWithin(JsonStyle::prettyPrinted, 100'000), "The result would be too long. At byte 316.");
}

}  // namespace

}  // namespace quillmonger
