#include "Platform/freedesktop/DesktopApplicationNaming.h"

#include <gtest/gtest.h>

#include "tests/Platform/freedesktop/ApplicationsFolder.h"

namespace {

using foundation::Url;
using namespace std::chrono_literals;

class DesktopApplicationNaming : public testing::Test {
 protected:
  [[nodiscard]] std::optional<std::string> nameOf(const std::string& file) const {
    return m_naming.displayName(Url::fromFilePath(m_applications.path(file).string()));
  }

  testsupport::ApplicationsFolder m_applications;
  platform::DesktopEntries m_entries{m_applications.dataFolders()};
  platform::DesktopApplicationNaming::Clock::time_point m_now{1h};
  platform::DesktopApplicationNaming m_naming{m_entries, [this] { return m_now; }};
};

TEST_F(DesktopApplicationNaming, TellsTheNameOfAnInstalledApplication) {
  m_applications.install("editor.desktop");

  EXPECT_EQ(nameOf("editor.desktop"), "Name of editor.desktop");
}

TEST_F(DesktopApplicationNaming, IsAbsentForWhatIsNotInstalled) { EXPECT_FALSE(nameOf("editor.desktop").has_value()); }

TEST_F(DesktopApplicationNaming, SeesARemovalTwoSecondsLater) {
  m_applications.install("editor.desktop");
  ASSERT_TRUE(nameOf("editor.desktop").has_value());
  std::filesystem::remove(m_applications.path("editor.desktop"));
  std::filesystem::last_write_time(m_applications.path(""), std::filesystem::file_time_type(1h));

  m_now += 1999ms;
  EXPECT_TRUE(nameOf("editor.desktop").has_value());
  m_now += 1ms;
  EXPECT_FALSE(nameOf("editor.desktop").has_value());
}

}  // namespace
