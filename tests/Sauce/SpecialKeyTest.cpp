#include "Sauce/SpecialKey.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <utility>

namespace {

using sauce::Key;
using sauce::specialKeyName;

TEST(SpecialKey, IsThatOfTheListedCodesAndNoOther) {
  std::set<sauce::KeyCode> listed{36, 48, 49, 51, 53, 64, 71, 76, 79, 80, 90, 102, 103, 104, 109, 111};
  for (sauce::KeyCode code = 96; code <= 101; ++code)
    listed.insert(code);
  for (sauce::KeyCode code = 105; code <= 107; ++code)
    listed.insert(code);
  for (sauce::KeyCode code = 113; code <= 126; ++code)
    listed.insert(code);

  for (sauce::KeyCode code = 0; code < 256; ++code)
    EXPECT_EQ(specialKeyName(code).has_value(), listed.contains(code)) << code;
}

TEST(SpecialKey, OfAFunctionIsNamedF1ToF20) {
  const std::pair<Key, const char*> functionKeys[] = {
      {Key::f1, "F1"},   {Key::f2, "F2"},   {Key::f3, "F3"},   {Key::f4, "F4"},   {Key::f5, "F5"},
      {Key::f6, "F6"},   {Key::f7, "F7"},   {Key::f8, "F8"},   {Key::f9, "F9"},   {Key::f10, "F10"},
      {Key::f11, "F11"}, {Key::f12, "F12"}, {Key::f13, "F13"}, {Key::f14, "F14"}, {Key::f15, "F15"},
      {Key::f16, "F16"}, {Key::f17, "F17"}, {Key::f18, "F18"}, {Key::f19, "F19"}, {Key::f20, "F20"}};

  for (const auto& [key, name] : functionKeys)
    EXPECT_EQ(specialKeyName(sauce::qwertyKeyCode(key).value()), name);
}

TEST(SpecialKey, SpaceIsNamedSpace) { EXPECT_EQ(specialKeyName(49), "Space"); }

TEST(SpecialKey, HelpIsAnEncircledQuestionMark) { EXPECT_EQ(specialKeyName(114), "?\u20DD"); }

TEST(SpecialKey, IsNamedSoThatItsKeyIsFound) {
  for (sauce::KeyCode code = 0; code < 128; ++code) {
    const auto name = specialKeyName(code);
    if (name) {
      EXPECT_EQ(sauce::keyForCharacter(*name, code), sauce::keyWithQWERTYKeyCode(code)) << *name;
    }
  }
}

}  // namespace
