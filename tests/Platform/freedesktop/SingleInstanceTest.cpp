#include "Platform/freedesktop/SingleInstance.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "tests/support/TemporaryFolder.h"

namespace {

using platform::SingleInstance;

class SingleInstanceTest : public testing::Test {
 protected:
  testsupport::TemporaryFolder parent;
  std::filesystem::path folder = parent.path() / "quillmonger";
};

TEST_F(SingleInstanceTest, IsGivenToOneAtATime) {
  auto first = SingleInstance::claim(folder);
  ASSERT_NE(first, nullptr);

  EXPECT_EQ(SingleInstance::claim(folder), nullptr);

  first.reset();
  EXPECT_NE(SingleInstance::claim(folder), nullptr);
}

TEST_F(SingleInstanceTest, IsFreeAgainAfterACrash) {
  const pid_t child = fork();
  if (child == 0) {
    const auto claim = SingleInstance::claim(folder);
    if (claim == nullptr) _exit(1);
    abort();
  }
  int status = 0;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  ASSERT_TRUE(WIFSIGNALED(status));

  EXPECT_NE(SingleInstance::claim(folder), nullptr);
}

TEST_F(SingleInstanceTest, FollowsNoSymbolicLinkOfTheLock) {
  std::filesystem::create_directory(folder);
  std::filesystem::permissions(folder, std::filesystem::perms::owner_all);
  std::filesystem::create_symlink(parent.path() / "elsewhere", folder / "lock");

  EXPECT_EQ(SingleInstance::claim(folder), nullptr);
  EXPECT_FALSE(std::filesystem::exists(parent.path() / "elsewhere"));
}

TEST_F(SingleInstanceTest, IsNotGivenInAFolderThatIsOpenToOthers) {
  std::filesystem::create_directory(folder);
  std::filesystem::permissions(folder, std::filesystem::perms::all);

  EXPECT_EQ(SingleInstance::claim(folder), nullptr);
}

}  // namespace
