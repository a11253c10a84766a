#include "Defaults/FileUserDefaults.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>

#include <fstream>
#include <memory>

#include "tests/support/TemporaryFolder.h"
#include "tests/support/VirtualRunLoop.h"

namespace {

namespace fs = std::filesystem;
using defaults::FileUserDefaults;
using defaults::Object;

class FileUserDefaultsTest : public testing::Test {
 protected:
  testsupport::TemporaryFolder folder;
  testsupport::VirtualRunLoop runLoop;
  fs::path path = folder.path() / "quillmonger/settings.json";

  std::optional<Object> onDisk(const std::string& name) {
    const auto content = defaults::DefaultsFile(path).read(runLoop.date());
    const auto found = content.values.find(name);
    return found == content.values.end() ? std::nullopt : std::optional(found->second);
  }
  /// Files that grow beyond `size` fail to, as on a full disk, while this lives.
  struct FullDisk {
    rlimit before{};
    explicit FullDisk(rlim_t size) {
      signal(SIGXFSZ, SIG_IGN);
      getrlimit(RLIMIT_FSIZE, &before);
      const rlimit limited{size, before.rlim_max};
      setrlimit(RLIMIT_FSIZE, &limited);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before); }
  };
};

TEST_F(FileUserDefaultsTest, WritesSeveralChangesTogetherSoonAfterTheFirst) {
  FileUserDefaults store(path, runLoop);

  store.setObject("a", true);
  runLoop.advance(foundation::Seconds(0.04));
  store.setObject("b", true);
  EXPECT_FALSE(fs::exists(path));
  runLoop.advance(foundation::Seconds(0.01));

  EXPECT_EQ(onDisk("a"), Object(true));
  EXPECT_EQ(onDisk("b"), Object(true));
}

TEST_F(FileUserDefaultsTest, WritesALaterChangeToo) {
  FileUserDefaults store(path, runLoop);
  store.setObject("a", std::int64_t{1});
  runLoop.advance(foundation::Seconds(1));

  store.setObject("a", std::int64_t{2});
  runLoop.advance(foundation::Seconds(1));

  EXPECT_EQ(onDisk("a"), Object(std::int64_t{2}));
}

TEST_F(FileUserDefaultsTest, WritesAtItsEnd) {
  {
    FileUserDefaults store(path, runLoop);
    store.setObject("a", 0.45F);
  }

  runLoop.advance(foundation::Seconds(1));

  FileUserDefaults again(path, runLoop);
  EXPECT_EQ(again.objectForKey("a"), Object(0.45F));
}

TEST_F(FileUserDefaultsTest, WritesNothingWithoutAChange) {
  {
    FileUserDefaults store(path, runLoop);
    store.registerDefaults({{"a", true}});
  }

  EXPECT_FALSE(fs::exists(path));
}

TEST_F(FileUserDefaultsTest, KeepsAValueOfAnUnknownKindUntilItsKeyIsWritten) {
  fs::create_directories(path.parent_path());
  std::ofstream(path) << R"({"version":1,"values":{"a":{"color":"x"},"b":{"color":"y"}}})";
  {
    FileUserDefaults store(path, runLoop);
    store.removeObject("b");
  }

  const auto content = defaults::DefaultsFile(path).read(runLoop.date());

  EXPECT_TRUE(content.unknown.contains("a"));
  EXPECT_FALSE(content.unknown.contains("b"));
}

TEST_F(FileUserDefaultsTest, KeepsNothingThatIsNestedTooDeeplyAndEverythingElse) {
  Object deep = Object::List();
  for (int depth = 0; depth < Object::depthLimit; ++depth)
    deep = Object(Object::List{deep});
  {
    FileUserDefaults store(path, runLoop);
    store.setObject("a", true);
    testing::internal::CaptureStdout();
    store.setObject("b", deep);
    EXPECT_NE(testing::internal::GetCapturedStdout().find("too deeply"), std::string::npos);
  }

  EXPECT_EQ(onDisk("a"), Object(true));
  EXPECT_EQ(onDisk("b"), std::nullopt);
}

TEST_F(FileUserDefaultsTest, GoesOnWithNothingStoredAfterADamagedFile) {
  fs::create_directories(path.parent_path());
  std::ofstream(path) << "damaged";

  FileUserDefaults store(path, runLoop);
  store.setObject("a", true);
  store.synchronize();

  EXPECT_EQ(onDisk("a"), Object(true));
}

TEST_F(FileUserDefaultsTest, KeepsTheValueAndSaysSoWhenItCannotWrite) {
  std::ofstream(path.parent_path()) << "a file where the folder should be";
  FileUserDefaults store(path, runLoop);

  store.setObject("a", true);
  testing::internal::CaptureStdout();
  store.synchronize();
  const std::string output = testing::internal::GetCapturedStdout();

  EXPECT_EQ(store.objectForKey("a"), Object(true));
  EXPECT_NE(output.find("can't write the settings file"), std::string::npos);
}

TEST_F(FileUserDefaultsTest, LeavesTheOldFileWholeWhenTheDiskIsFull) {
  FileUserDefaults store(path, runLoop);
  store.setObject("a", std::string("old"));
  store.synchronize();

  store.setObject("a", std::string(5000, 'n'));
  testing::internal::CaptureStdout();
  {
    const FullDisk full(1000);
    store.synchronize();
  }
  testing::internal::GetCapturedStdout();

  EXPECT_EQ(onDisk("a"), Object(std::string("old")));
  EXPECT_EQ(std::distance(fs::directory_iterator(path.parent_path()), fs::directory_iterator()), 1);
}

}  // namespace
