#include "KeyboardShortcuts/Shortcut.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using keyboardshortcuts::Event;
using keyboardshortcuts::Shortcut;

constexpr std::uint32_t shiftFlag = 0x20000;
constexpr std::uint32_t commandFlag = 0x100000;
constexpr std::uint32_t capsLockFlag = 0x10000;

TEST(Shortcut, ComesBackFromItsStoredForm) {
  const Shortcut shortcut{9, 0x300};

  EXPECT_EQ(shortcut.toJson(), R"({"carbonKeyCode":9,"carbonModifiers":768})");
  EXPECT_EQ(Shortcut::fromJson(shortcut.toJson()), shortcut);
}

TEST(Shortcut, OfAKeyStandsAtItsPlaceOnTheAnsiKeyboard) {
  EXPECT_EQ(Shortcut::of(sauce::Key::v, shiftFlag | commandFlag | capsLockFlag), (Shortcut{9, 0x300}));
  EXPECT_EQ(Shortcut::of(sauce::Key::atSign, commandFlag), std::nullopt);
}

TEST(Shortcut, ComesOfAPressOrAReleaseAndOfNoOtherEvent) {
  EXPECT_EQ(Shortcut::of(Event{Event::Type::keyDown, 9, shiftFlag | commandFlag}), (Shortcut{9, 0x300}));
  EXPECT_EQ(Shortcut::of(Event{Event::Type::keyUp, 9, commandFlag}), (Shortcut{9, 0x100}));
  for (const auto type : {Event::Type::flagsChanged, Event::Type::leftMouseUp, Event::Type::rightMouseUp}) {
    EXPECT_EQ(Shortcut::of(Event{type, 9, commandFlag}), std::nullopt);
  }
}

TEST(Shortcut, HashesByItsTwoParts) {
  const std::hash<Shortcut> hash;

  EXPECT_EQ(hash({9, 0x300}), hash({9, 0x300}));
  EXPECT_NE(hash({9, 0x300}), hash({9, 0x100}));
  EXPECT_NE(hash({9, 0x300}), hash({7, 0x300}));
}

class NoShortcut : public testing::TestWithParam<std::string> {};

TEST_P(NoShortcut, IsReadFromAnythingElse) { EXPECT_EQ(Shortcut::fromJson(GetParam()), std::nullopt); }

INSTANTIATE_TEST_SUITE_P(Texts, NoShortcut,
                         testing::Values("", "false", "[9,768]", "{", R"({"carbonKeyCode":9})",
                                         R"({"carbonKeyCode":"9","carbonModifiers":768})",
                                         R"({"carbonKeyCode":9.5,"carbonModifiers":768})", std::string(100000, '['),
                                         "{\"carbonKeyCode\":9,\"carbonModifiers\":768" + std::string(300, ' ') + "}"));

}  // namespace
