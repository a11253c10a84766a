#include <gtest/gtest.h>

#include <limits>

#include "Defaults/DefaultsFile.h"

namespace {

using defaults::Bytes;
using defaults::DefaultsFile;
using defaults::Object;
using foundation::Date;

/// The whole text of a file that has just `entry`, under the name "a".
std::string file(const std::string& entry) { return R"({"values":{"a":)" + entry + R"(},"version":1})"; }

std::string withoutSpace(std::string text) {
  std::erase_if(text, [](char character) { return character == ' ' || character == '\n'; });
  return text;
}

Object text(const char* value) { return std::string(value); }

struct Written {
  const char* name;
  Object object;
  std::string entry;
};

class StoredKind : public testing::TestWithParam<Written> {};

TEST_P(StoredKind, IsWrittenBesideItsKindAndReadAgain) {
  const auto& [name, object, entry] = GetParam();

  EXPECT_EQ(withoutSpace(DefaultsFile::encode({{{"a", object}}, {}})), file(entry));
  const auto content = DefaultsFile::decode(file(entry));
  ASSERT_TRUE(content.has_value());
  EXPECT_EQ(content->values, (defaults::Objects{{"a", object}}));
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, StoredKind,
    testing::Values(Written{"Date", Date(std::chrono::nanoseconds(1234567890123456789)),
                            R"({"date":1234567890123456789})"},
                    Written{"EarliestDate", Date(std::chrono::nanoseconds(std::numeric_limits<std::int64_t>::min())),
                            R"({"date":-9223372036854775808})"},
                    Written{"Data", Bytes{0, 1, 254, 255}, R"({"data":"AAH+/w=="})"},
                    Written{"NoData", Bytes(), R"({"data":""})"},
                    Written{"Strings", Object::List{text("x"), text("")}, R"({"strings":["x",""]})"},
                    Written{"EmptyList", Object::List(), R"({"strings":[]})"},
                    Written{"MixedList", Object::List{text("x"), 0.5F, Object::List{true}},
                            R"({"list":[{"string":"x"},{"float":0.5},{"list":[{"bool":true}]}]})"},
                    Written{"EmptyMap", Object::Map(), R"({"map":{}})"},
                    Written{"Map", Object::Map{{"", std::int64_t{1}}, {"b", Object::Map{{"c", 0.5}}}},
                            R"({"map":{"":{"integer":1},"b":{"map":{"c":{"double":0.5}}}}})"}),
    [](const auto& row) { return row.param.name; });

class UnreadableKind : public testing::TestWithParam<std::pair<const char*, const char*>> {};

TEST_P(UnreadableKind, IsKeptAsItIs) {
  const auto text = file(GetParam().second);

  const auto content = DefaultsFile::decode(text);

  ASSERT_TRUE(content.has_value());
  EXPECT_TRUE(content->values.empty());
  EXPECT_EQ(withoutSpace(DefaultsFile::encode(*content)), text);
}

INSTANTIATE_TEST_SUITE_P(
    Entries, UnreadableKind,
    testing::Values(std::pair("DateAsText", R"({"date":"2030-01-01"})"), std::pair("DateTooLate", R"({"date":1e+300})"),
                    std::pair("DateBeyondItsWidth", R"({"date":9223372036854775808})"),
                    std::pair("DataWithoutPadding", R"({"data":"AAH+/w"})"),
                    std::pair("DataOfOtherCharacters", R"({"data":"A*=="})"),
                    std::pair("DataAfterPadding", R"({"data":"AA==AA=="})"), std::pair("DataAsNumber", R"({"data":1})"),
                    std::pair("ListAsNumber", R"({"list":1})"), std::pair("ListOfBareValues", R"({"list":[1]})"),
                    std::pair("ListWithOneUnknownKind", R"({"list":[{"bool":true},{"color":1}]})"),
                    std::pair("MapAsList", R"({"map":[]})"),
                    std::pair("MapWithOneUnknownKind", R"({"map":{"b":{"bool":true},"c":{"color":1}}})"),
                    std::pair("StringsAsText", R"({"strings":"a"})")),
    [](const auto& row) { return row.param.first; });

Object nested(int depth) {
  Object object = true;
  for (int level = 0; level < depth; ++level)
    object = level % 2 == 0 ? Object(Object::List{object}) : Object(Object::Map{{"a", object}});
  return object;
}

TEST(DefaultsCoding, GivesBackTheDeepestValueThatAStoreTakes) {
  const defaults::Objects values{{"a", nested(Object::depthLimit)}};

  const auto content = DefaultsFile::decode(DefaultsFile::encode({values, {}}));

  ASSERT_TRUE(content.has_value());
  EXPECT_EQ(content->values, values);
}

TEST(DefaultsCoding, RefusesATextThatIsNestedDeeper) {
  EXPECT_FALSE(DefaultsFile::decode(DefaultsFile::encode({{{"a", nested(Object::depthLimit + 1)}}, {}})).has_value());
}

}  // namespace
