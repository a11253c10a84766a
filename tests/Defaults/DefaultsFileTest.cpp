#include "Defaults/DefaultsFile.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cmath>
#include <cstring>
#include <fstream>
#include <limits>
#include <random>
#include <sstream>

#include "tests/support/TemporaryFolder.h"
#include "tests/support/VirtualRunLoop.h"

namespace {

namespace fs = std::filesystem;
using defaults::DefaultsFile;
using defaults::Object;
using testsupport::VirtualRunLoop;

std::string contentOf(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

void put(const fs::path& path, const std::string& text) { std::ofstream(path, std::ios::binary) << text; }

std::size_t fileCount(const fs::path& folder) {
  return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
}

DefaultsFile::Content example() {
  return {{{"flag", true},
           {"count", std::int64_t{-9007199254740993}},
           {"volume", 0.45F},
           {"delay", 0.15},
           {"name", std::string("\"quoted\" \\ ü\n")},
           {"list", Object::List{std::string("a"), std::string()}},
           {"moment", foundation::Date(std::chrono::nanoseconds(-1))},
           {"bytes", defaults::Bytes{1, 2, 3}},
           {"map", Object::Map{{"a", Object::List{true, 0.5F}}}}},
          {}};
}

class DefaultsFileTest : public testing::Test {
 protected:
  testsupport::TemporaryFolder folder;
  fs::path path = folder.path() / "quillmonger/settings.json";
  DefaultsFile file{path};

  DefaultsFile::Content read() const { return file.read(VirtualRunLoop::startDate()); }
  void putDamaged(const std::string& text) const {
    fs::create_directories(path.parent_path());
    put(path, text);
  }
};

TEST_F(DefaultsFileTest, GivesBackEachKindWithItsWidth) {
  ASSERT_TRUE(file.write(example()));

  EXPECT_EQ(read().values, example().values);
}

TEST_F(DefaultsFileTest, GivesBackNumbersAtTheLimitsOfTheirKinds) {
  const defaults::Objects values{{"a", std::numeric_limits<std::int64_t>::min()},
                                 {"b", std::numeric_limits<std::int64_t>::max()},
                                 {"c", std::numeric_limits<float>::max()},
                                 {"d", std::numeric_limits<float>::denorm_min()},
                                 {"e", std::numeric_limits<double>::max()},
                                 {"f", std::numeric_limits<double>::denorm_min()},
                                 {"g", std::numeric_limits<double>::infinity()},
                                 {"h", -std::numeric_limits<float>::infinity()},
                                 {"i", 3.0}};

  EXPECT_EQ(DefaultsFile::decode(DefaultsFile::encode({values, {}}))->values, values);
}

TEST_F(DefaultsFileTest, GivesBackNotANumber) {
  const auto content = DefaultsFile::decode(DefaultsFile::encode({{{"a", std::nan("")}}, {}}));

  EXPECT_TRUE(std::isnan(*content->values.at("a").as<double>()));
}

TEST_F(DefaultsFileTest, GivesBackEveryFloatExactly) {
  std::mt19937 random(1);

  for (int round = 0; round < 2000; ++round) {
    const auto bits = static_cast<std::uint32_t>(random());
    float value = 0;
    std::memcpy(&value, &bits, sizeof value);
    if (!std::isfinite(value)) continue;
    EXPECT_EQ(DefaultsFile::decode(DefaultsFile::encode({{{"a", value}}, {}}))->values.at("a"), Object(value));
  }
}

TEST_F(DefaultsFileTest, IsReadableByItsUserAlone) {
  ASSERT_TRUE(file.write(example()));

  struct stat status {};
  ASSERT_EQ(stat(path.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777U, 0600U);
  ASSERT_EQ(stat(path.parent_path().c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777U, 0700U);
}

TEST_F(DefaultsFileTest, ReadsAMissingFileAsEmptyAndMakesNothing) {
  EXPECT_TRUE(read().values.empty());
  EXPECT_FALSE(fs::exists(path.parent_path()));
}

TEST_F(DefaultsFileTest, LeavesNoTemporaryFileBehind) {
  ASSERT_TRUE(file.write(example()));
  ASSERT_TRUE(file.write(example()));

  EXPECT_EQ(fileCount(path.parent_path()), 1U);
}

TEST_F(DefaultsFileTest, KeepsASymbolicLinkAndWritesWhereItLeads) {
  fs::create_directories(path.parent_path());
  put(folder.path() / "elsewhere.json", R"({"version":1,"values":{}})");
  fs::create_symlink(folder.path() / "elsewhere.json", path);

  ASSERT_TRUE(DefaultsFile(path).write(example()));

  EXPECT_TRUE(fs::is_symlink(path));
  EXPECT_EQ(DefaultsFile(path).read(VirtualRunLoop::startDate()).values, example().values);
}

TEST_F(DefaultsFileTest, SetsADamagedFileAsideWithALine) {
  putDamaged("{\"version\":1,");

  testing::internal::CaptureStdout();
  const auto content = read();
  const std::string output = testing::internal::GetCapturedStdout();

  EXPECT_TRUE(content.values.empty());
  EXPECT_FALSE(fs::exists(path));
  EXPECT_EQ(contentOf(path.string() + ".damaged-2026-01-01T120000Z"), "{\"version\":1,");
  EXPECT_NE(output.find("damaged"), std::string::npos);
}

TEST_F(DefaultsFileTest, NeverOverwritesWhatWasSetAsideBefore) {
  putDamaged("first");
  read();
  putDamaged("second");
  read();

  EXPECT_EQ(contentOf(path.string() + ".damaged-2026-01-01T120000Z"), "first");
  EXPECT_EQ(contentOf(path.string() + ".damaged-2026-01-01T120000Z-2"), "second");
}

TEST_F(DefaultsFileTest, TakesAFileOfMoreThanTheLimitForDamaged) {
  putDamaged(R"({"version":1,"values":{}})" + std::string(DefaultsFile::sizeLimit, ' '));

  EXPECT_TRUE(read().values.empty());
  EXPECT_FALSE(fs::exists(path));
}

TEST_F(DefaultsFileTest, WritesNoFileThatWouldBeTakenForDamaged) {
  ASSERT_TRUE(file.write(example()));

  EXPECT_FALSE(file.write({{{"a", std::string(DefaultsFile::sizeLimit, 'a')}}, {}}));

  EXPECT_EQ(read().values, example().values);
}

TEST_F(DefaultsFileTest, DoesNotWaitForAPipeOfItsName) {
  fs::create_directories(path.parent_path());
  ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);

  EXPECT_TRUE(read().values.empty());
}

TEST_F(DefaultsFileTest, KeepsEntriesOfUnknownKinds) {
  const std::string unknown = R"({"version":1,"values":{"new":{"color":"red"},"odd":7,"known":{"bool":true}}})";

  const auto content = DefaultsFile::decode(DefaultsFile::encode(*DefaultsFile::decode(unknown)));

  EXPECT_EQ(content->unknown.at("new"), R"({"color":"red"})");
  EXPECT_EQ(content->unknown.at("odd"), "7");
  EXPECT_EQ(content->values.at("known"), Object(true));
}

TEST_F(DefaultsFileTest, TakesTheLastOfDuplicateNames) {
  const auto content = DefaultsFile::decode(R"({"version":1,"values":{"a":{"integer":1},"a":{"integer":2}}})");

  EXPECT_EQ(content->values.at("a"), Object(std::int64_t{2}));
}

TEST_F(DefaultsFileTest, TakesEveryBeginningOfAFileForDamaged) {
  std::string text = DefaultsFile::encode(example());
  text.resize(text.find_last_of('}') + 1);

  for (std::size_t length = 0; length < text.size(); ++length) {
    EXPECT_FALSE(DefaultsFile::decode(std::string_view(text).substr(0, length)).has_value()) << length;
  }
}

TEST_F(DefaultsFileTest, SurvivesRandomBytes) {
  std::mt19937 random(2);
  const std::string text = DefaultsFile::encode(example());

  for (int round = 0; round < 3000; ++round) {
    std::string changed = text;
    for (int change = 0; change < 4; ++change)
      changed[random() % changed.size()] = static_cast<char>(random());
    const auto content = DefaultsFile::decode(changed);
    if (content.has_value()) {
      EXPECT_TRUE(DefaultsFile::decode(DefaultsFile::encode(*content)).has_value());
    }
  }
}

class DamagedText : public testing::TestWithParam<std::pair<const char*, std::string>> {};

TEST_P(DamagedText, IsRefused) { EXPECT_FALSE(DefaultsFile::decode(GetParam().second).has_value()); }

INSTANTIATE_TEST_SUITE_P(
    Texts, DamagedText,
    testing::Values(std::pair("Empty", std::string()), std::pair("NoObject", std::string("[]")),
                    std::pair("NoVersion", std::string(R"({"values":{}})")),
                    std::pair("NewerVersion", std::string(R"({"version":2,"values":{}})")),
                    std::pair("ValuesNoObject", std::string(R"({"version":1,"values":[]})")),
                    std::pair("BareNaN", std::string(R"({"version":1,"values":{"a":{"double":NaN}}})")),
                    std::pair("TooHugeNumber", std::string(R"({"version":1,"values":{"a":{"double":1e999}}})")),
                    std::pair("InvalidUtf8", std::string("{\"version\":1,\"values\":{\"\xff\":{\"bool\":true}}}")),
                    std::pair("DeepLists", std::string(1000000, '[')),
                    std::pair("DeepButClosed", R"({"version":1,"values":{},"a":)" + std::string(1000, '[') +
                                                   std::string(1000, ']') + "}")),
    [](const auto& row) { return row.param.first; });

class ForeignValue : public testing::TestWithParam<std::pair<const char*, const char*>> {};

TEST_P(ForeignValue, IsKeptButIsNoObject) {
  const std::string entry = GetParam().second;

  const auto content = DefaultsFile::decode(R"({"version":1,"values":{"a":)" + entry + "}}");

  ASSERT_TRUE(content.has_value());
  EXPECT_TRUE(content->values.empty());
  EXPECT_TRUE(content->unknown.contains("a"));
}

INSTANTIATE_TEST_SUITE_P(Values, ForeignValue,
                         testing::Values(std::pair("IntegerTooLarge", R"({"integer":9223372036854775808})"),
                                         std::pair("IntegerFarTooLarge", R"({"integer":99999999999999999999})"),
                                         std::pair("IntegerWithFraction", R"({"integer":1.5})"),
                                         std::pair("FloatTooLarge", R"({"float":1e300})"),
                                         std::pair("BoolAsNumber", R"({"bool":1})"),
                                         std::pair("MixedList", R"({"strings":["a",1]})"),
                                         std::pair("TwoKinds", R"({"bool":true,"integer":1})")),
                         [](const auto& row) { return row.param.first; });

}  // namespace
