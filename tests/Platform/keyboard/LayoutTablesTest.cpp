#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <string>

#include "Foundation/NotificationCenter.h"
#include "Platform/keyboard/XkbKeymap.h"
#include "Sauce/Sauce.h"
#include "tests/support/FakeInputSourceService.h"

namespace {

using sauce::Key;

using Codes = std::map<Key, std::optional<sauce::KeyCode>>;

struct Layout {
  const char* name;
  const char* layout;
  const char* variant;
  Codes codes;
};

void PrintTo(const Layout& layout, std::ostream* out) { *out << layout.name; }

class LayoutTable : public testing::TestWithParam<Layout> {};

TEST_P(LayoutTable, FindsEachKeyWhereTheLayoutHasIt) {
  const auto keymap = platform::XkbKeymap::compile(GetParam().layout, GetParam().variant);
  ASSERT_TRUE(keymap);
  testsupport::FakeInputSourceService::Texts texts;
  for (sauce::KeyCode code = 0; code <= 127; ++code) {
    if (const auto text = keymap->text(0, code)) texts.emplace(code, *text);
  }
  const sauce::InputSource source(GetParam().layout);
  testsupport::FakeInputSourceService service;
  service.setTexts(source, texts);
  service.setEnabled({source});
  service.setSelected(source);
  service.setASCIICapable(source);
  foundation::NotificationCenter notificationCenter;

  const sauce::Sauce mapping(service, notificationCenter);

  for (const auto& [key, code] : GetParam().codes)
    EXPECT_EQ(mapping.keyCode(key), code) << sauce::rawValue(key);
  EXPECT_EQ(mapping.keyCode(Key::keypadOne), 83);
  EXPECT_EQ(mapping.keyCode(Key::keypadMultiply), 67);
  EXPECT_EQ(mapping.keyCode(Key::return_), 36);
}

const Codes plainDigits{{Key::one, 18}, {Key::two, 19},   {Key::three, 20}, {Key::four, 21}, {Key::five, 23},
                        {Key::six, 22}, {Key::seven, 26}, {Key::eight, 28}, {Key::nine, 25}, {Key::zero, 29}};

const Codes noDigits{{Key::one, {}}, {Key::two, {}},   {Key::three, {}}, {Key::four, {}}, {Key::five, {}},
                     {Key::six, {}}, {Key::seven, {}}, {Key::eight, {}}, {Key::nine, {}}, {Key::zero, {}}};

Codes with(Codes digits, Codes others) {
  digits.merge(others);
  return digits;
}

INSTANTIATE_TEST_SUITE_P(
    Layouts, LayoutTable,
    testing::Values(
        Layout{"American", "us", "",
               with(plainDigits, {{Key::a, 0},
                                  {Key::z, 6},
                                  {Key::q, 12},
                                  {Key::w, 13},
                                  {Key::v, 9},
                                  {Key::y, 16},
                                  {Key::grave, 50},
                                  {Key::keypadDecimal, 65},
                                  {Key::colon, {}}})},
        Layout{"German", "de", "",
               with(plainDigits, {{Key::a, 0},
                                  {Key::z, 16},
                                  {Key::q, 12},
                                  {Key::w, 13},
                                  {Key::v, 9},
                                  {Key::y, 6},
                                  {Key::caret, 50},
                                  {Key::minus, 44},
                                  {Key::keypadDecimal, {}}})},
        Layout{"French", "fr", "",
               with(noDigits, {{Key::a, 12},
                               {Key::z, 13},
                               {Key::q, 0},
                               {Key::w, 6},
                               {Key::v, 9},
                               {Key::m, 41},
                               {Key::caret, 33},
                               {Key::comma, 46},
                               {Key::underscore, 28}})},
        Layout{"Dvorak", "us", "dvorak",
               with(plainDigits, {{Key::a, 0}, {Key::z, 44}, {Key::q, 7}, {Key::w, 43}, {Key::v, 47}})},
        Layout{"Russian", "ru", "",
               with(plainDigits,
                    {{Key::a, {}}, {Key::z, {}}, {Key::q, {}}, {Key::w, {}}, {Key::v, {}}, {Key::period, 44}})},
        Layout{"Japanese", "jp", "",
               with(plainDigits, {{Key::a, 0},
                                  {Key::z, 6},
                                  {Key::q, 12},
                                  {Key::w, 13},
                                  {Key::v, 9},
                                  {Key::atSign, 33},
                                  {Key::caret, 24},
                                  {Key::colon, 39},
                                  {Key::leftBracket, 30},
                                  {Key::rightBracket, 42},
                                  {Key::backslash, 93}})},
        Layout{"Greek", "gr", "",
               with(plainDigits,
                    {{Key::a, {}}, {Key::z, {}}, {Key::q, {}}, {Key::w, {}}, {Key::v, {}}, {Key::semicolon, 12}})}),
    [](const testing::TestParamInfo<Layout>& layout) { return std::string(layout.param.name); });

}  // namespace
