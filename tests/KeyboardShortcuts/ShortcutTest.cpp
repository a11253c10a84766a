#include "KeyboardShortcuts/Shortcut.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using keyboardshortcuts::Shortcut;

TEST(Shortcut, ComesBackFromItsStoredForm) {
  const Shortcut shortcut{9, 0x300};

  EXPECT_EQ(shortcut.toJson(), R"({"carbonKeyCode":9,"carbonModifiers":768})");
  EXPECT_EQ(Shortcut::fromJson(shortcut.toJson()), shortcut);
}

class NoShortcut : public testing::TestWithParam<std::string> {};

TEST_P(NoShortcut, IsReadFromAnythingElse) { EXPECT_EQ(Shortcut::fromJson(GetParam()), std::nullopt); }

INSTANTIATE_TEST_SUITE_P(Texts, NoShortcut,
                         testing::Values("", "false", "[9,768]", "{", R"({"carbonKeyCode":9})",
                                         R"({"carbonKeyCode":"9","carbonModifiers":768})",
                                         R"({"carbonKeyCode":9.5,"carbonModifiers":768})", std::string(100000, '['),
                                         "{\"carbonKeyCode\":9,\"carbonModifiers\":768" + std::string(300, ' ') + "}"));

}  // namespace
