#include "Quillmonger/update/SoftwareVersion.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace {

using quillmonger::SoftwareVersion;

SoftwareVersion version(const std::string& text) { return SoftwareVersion::parse(text).value(); }

TEST(SoftwareVersion, ComparesNumbersAndNotTexts) { EXPECT_LT(version("1.9"), version("1.10")); }

TEST(SoftwareVersion, TakesMissingNumbersForZero) {
  EXPECT_EQ(version("1.2"), version("1.2.0"));
  EXPECT_LT(version("1.2"), version("1.2.1"));
}

TEST(SoftwareVersion, PutsWhatComesBeforeAReleaseBeforeIt) {
  const std::vector<std::string> inOrder{"0.9",        "1.0-2",       "1.0-alpha", "1.0-alpha.1", "1.0-alpha.beta",
                                         "1.0-beta.2", "1.0-beta.11", "1.0-rc",    "1.0",         "1.0.1-rc",
                                         "1.0.1"};

  for (std::size_t index = 1; index < inOrder.size(); ++index)
    EXPECT_LT(version(inOrder[index - 1]), version(inOrder[index])) << inOrder[index];
}

class BadSoftwareVersion : public testing::TestWithParam<std::string> {};

TEST_P(BadSoftwareVersion, IsNone) { EXPECT_FALSE(SoftwareVersion::parse(GetParam()).has_value()); }

INSTANTIATE_TEST_SUITE_P(Of, BadSoftwareVersion,
                         testing::Values("", ".", "1.", ".1", "v1", "1.x", "1 0", "-rc", "1.0-", "1.0-rc..1", "1.0-r/c",
                                         "1.0+build", "1234567890", "1.0\n", std::string(65, '1')));

}  // namespace
