#include "Sauce/Sauce.h"

#include <gtest/gtest.h>

#include "tests/Sauce/SauceFixture.h"

namespace {

using sauce::InputSource;
using sauce::Key;

using Sauce = sauce::SauceFixture;

TEST_F(Sauce, GivesTheCodeOfAKeyUnderTheCurrentLayout) {
  const sauce::Sauce mapping(m_service, m_notificationCenter);
  EXPECT_EQ(mapping.keyCode(Key::a), 0);

  select(m_french);

  EXPECT_EQ(mapping.keyCode(Key::a), 12);
}

TEST_F(Sauce, GivesTheCodeOfAKeyUnderAGivenLayout) {
  const sauce::Sauce mapping(m_service, m_notificationCenter);

  EXPECT_EQ(mapping.keyCode(m_french, Key::a), 12);
  EXPECT_EQ(mapping.keyCode(InputSource("gr"), Key::a), std::nullopt);
}

TEST_F(Sauce, GivesNoCodeOfAKeyThatTheLayoutLacksAndDoesNotFallBack) {
  const sauce::Sauce mapping(m_service, m_notificationCenter);

  EXPECT_EQ(mapping.keyCode(Key::w), std::nullopt);
}

TEST_F(Sauce, GivesNoCodeUnderASelectedInputMethodWithoutLayoutData) {
  const sauce::Sauce mapping(m_service, m_notificationCenter);

  select(m_hangul);

  EXPECT_EQ(mapping.keyCode(Key::v), std::nullopt);
  EXPECT_EQ(mapping.currentKeyCodes(), nullptr);
  EXPECT_EQ(mapping.key(9), std::nullopt);
}

TEST_F(Sauce, GivesTheWholeTableOfTheCurrentAndOfAGivenLayout) {
  const sauce::Sauce mapping(m_service, m_notificationCenter);

  ASSERT_NE(mapping.currentKeyCodes(), nullptr);
  EXPECT_EQ(*mapping.currentKeyCodes(), mapping.layout().mappedKeyCodes().at(m_us));
  ASSERT_NE(mapping.keyCodes(m_french), nullptr);
  EXPECT_EQ(*mapping.keyCodes(m_french), mapping.layout().mappedKeyCodes().at(m_french));
  EXPECT_EQ(mapping.keyCodes(m_hangul), nullptr);
}

TEST_F(Sauce, GivesTheKeyAtACodeUnderTheCurrentLayout) {
  const sauce::Sauce mapping(m_service, m_notificationCenter);
  EXPECT_EQ(mapping.key(12), Key::q);
  EXPECT_EQ(mapping.key(83), Key::keypadOne);

  select(m_french);

  EXPECT_EQ(mapping.key(12), Key::a);
  EXPECT_EQ(mapping.key(18), std::nullopt);
}

TEST_F(Sauce, ConvertsModifiers) {
  const sauce::Sauce mapping(m_service, m_notificationCenter);

  EXPECT_EQ(mapping.modifierTransformar().serviceBits(0x120000), 0x300U);
  EXPECT_EQ(mapping.layout().modifierTransformer().eventFlags(0x300), 0x120000U);
}

}  // namespace
