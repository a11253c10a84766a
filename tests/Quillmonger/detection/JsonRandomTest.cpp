#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "Quillmonger/detection/JsonDetector.h"
#include "Quillmonger/detection/JsonReader.h"
#include "tests/Quillmonger/detection/RandomText.h"

namespace quillmonger {

namespace {

using JsonResult = JsonDetector::JsonResult;

const std::vector<std::string> spaces{"", "", "", " ", "\n", "\t", "\r\n  "};
const std::vector<std::string> numbers{"0",   "-0",      "7", "-12", "1.50", "2e3", "1E-7", "18446744073709551615",
                                       "0.1", "-9.75e+2"};
const std::vector<std::string> words{"true", "false", "null"};
const std::vector<std::string> letters{"a",    "B",       " ",  "/",       "\\/",     "\\\"",    "\\\\",
                                       "\\n",  "é",       "한", "\\u00e9", "\\u0000", "\\u001f", "\\ud83d\\ude42",
                                       "🙂", "\\u2028", "{",  "]"};

std::string randomString(RandomText& random) {
  std::string text = "\"";
  for (std::size_t i = random.below(6); i > 0; --i)
    text += random.oneOf(letters);
  return text + "\"";
}

// A number of any length, such as "-0.0501E+07". Not 0 with an exponent: readers differ on one that is too large.
std::string randomNumber(RandomText& random) {
  const auto digits = [&random](std::size_t most) {
    std::string text;
    for (std::size_t i = 1 + random.below(most); i > 0; --i)
      text += static_cast<char>('0' + random.below(10));
    return text;
  };
  std::string text = random.below(2) == 0 ? "-" : "";
  text += random.below(3) == 0 ? "0." + digits(25) + "1" : "7" + digits(25);
  if (random.below(2) == 0) text += random.oneOf<std::string>({"e", "E", "e+", "E+", "e-", "E-"}) + digits(2);
  return text;
}

// What of a document is neither within a string nor white space, so that a number is its digits.
std::string skeleton(std::string_view json) {
  std::string text;
  bool isInString = false;
  for (std::size_t at = 0; at < json.size(); ++at) {
    const char byte = json[at];
    if (byte == '"') isInString = !isInString;
    if (isInString && byte == '\\') ++at;
    if (!isInString && std::string_view(" \t\r\n").find(byte) == std::string_view::npos) text += byte;
  }
  return text;
}

std::string randomValue(RandomText& random, int depth);

std::string randomContainer(RandomText& random, int depth) {
  const bool isObject = random.below(2) == 0;
  std::string text = (isObject ? "{" : "[") + random.oneOf(spaces);
  const std::size_t count = random.below(5);
  for (std::size_t i = 0; i < count; ++i) {
    if (i > 0) text += "," + random.oneOf(spaces);
    // Keys that differ: the independent reader keeps one of two that are the same.
    if (isObject)
      text += "\"" + std::to_string(count - i) + randomString(random).substr(1) + random.oneOf(spaces) + ":";
    text += random.oneOf(spaces) + randomValue(random, depth - 1) + random.oneOf(spaces);
  }
  return text + (isObject ? "}" : "]");
}

std::string randomValue(RandomText& random, int depth) {
  const std::size_t kind = random.below(depth > 0 ? 5 : 3);
  if (kind == 0) return random.below(2) == 0 ? random.oneOf(numbers) : randomNumber(random);
  if (kind == 1) return random.oneOf(words);
  return kind == 2 ? randomString(random) : randomContainer(random, depth);
}

TEST(JsonRandomTest, RewritingKeepsEveryValueAndTheOrderOfTheKeys) {
  RandomText random(1);
  for (int i = 0; i < 4000; ++i) {
    const JsonResult result(randomContainer(random, 5));
    const auto minified = result.minified();
    const auto beautified = result.beautified();

    ASSERT_TRUE(minified && beautified) << result.json;
    ASSERT_EQ(JsonResult(*beautified).minified(), minified) << result.json;
    ASSERT_EQ(JsonResult(*minified).beautified(), beautified) << result.json;
    const auto expected = nlohmann::ordered_json::parse(result.json);
    ASSERT_EQ(nlohmann::ordered_json::parse(*minified), expected) << result.json;
    ASSERT_EQ(nlohmann::ordered_json::parse(*beautified), expected) << result.json;
  }
}

TEST(JsonRandomTest, RewritingKeepsTheTextOfEveryNumber) {
  RandomText random(3);
  for (int i = 0; i < 4000; ++i) {
    const JsonResult result(randomContainer(random, 5));
    const auto minified = result.minified();
    const auto beautified = result.beautified();

    ASSERT_TRUE(minified && beautified) << result.json;
    ASSERT_EQ(skeleton(*minified), skeleton(result.json)) << result.json;
    ASSERT_EQ(skeleton(*beautified), skeleton(result.json)) << result.json;
  }
}

TEST(JsonRandomTest, JudgesDamagedDocumentsAsAnIndependentReaderDoes) {
  const std::vector<std::string> pieces{"{", "}", "[", "]", ",", ":",  "\"",     "\\",
                                        "1", "-", ".", "u", " ", "\n", "\u0301", "\\uDC00"};
  RandomText random(2);
  int sound = 0;
  for (int i = 0; i < 8000; ++i) {
    std::string text = randomContainer(random, 3);
    for (std::size_t changes = random.below(3); changes > 0; --changes)
      text = random.mutated(text, pieces);
    const bool isSound = !checkJson(text).has_value();
    ASSERT_EQ(isSound, nlohmann::json::accept(text)) << text;
    sound += isSound ? 1 : 0;
  }
  EXPECT_GT(sound, 2000);
  EXPECT_LT(sound, 7000);
}

}  // namespace

}  // namespace quillmonger
