#include "Sauce/KeyboardLayout.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "Sauce/SpecialKey.h"
#include "tests/Sauce/SauceFixture.h"

namespace {

using sauce::InputSource;
using sauce::Key;

class KeyboardLayout : public sauce::SauceFixture {
 protected:
  [[nodiscard]] const sauce::KeyCodes& table(const InputSource& source) const {
    return m_layout->mappedKeyCodes().at(source);
  }
  void start() { m_layout = std::make_unique<sauce::KeyboardLayout>(m_service, m_notificationCenter); }

  std::unique_ptr<sauce::KeyboardLayout> m_layout;
};

TEST_F(KeyboardLayout, StartsWithTheCurrentAndTheEnabledSourcesAndPostsNothing) {
  m_service.setSelected(m_french);
  start();

  EXPECT_EQ(m_layout->currentKeyboardLayoutInputSource(), m_french);
  EXPECT_EQ(m_layout->currentASCIICapableInputSource(), m_us);
  EXPECT_EQ(m_layout->inputSources(), (std::vector{m_us, m_french, m_hangul}));
  EXPECT_EQ(m_posted, Posted{});
}

TEST_F(KeyboardLayout, MapsEachEnabledSourceThatSaysWhatItsKeysType) {
  start();

  EXPECT_EQ(m_layout->mappedKeyCodes().size(), 2U);
  EXPECT_EQ(table(m_us).at(Key::q), 12);
  EXPECT_EQ(table(m_french).at(Key::q), 0);
  EXPECT_FALSE(m_layout->mappedKeyCodes().contains(m_hangul));
}

TEST_F(KeyboardLayout, GivesTheLowerCodeWhenTwoTypeTheSameCharacter) {
  m_service.setTexts(m_us, {{50, "x"}, {7, "x"}, {10, "X"}});
  start();

  EXPECT_EQ(table(m_us).at(Key::x), 7);
}

TEST_F(KeyboardLayout, PartsTheKeypadFromTheMainBlock) {
  start();

  EXPECT_EQ(table(m_us).at(Key::one), 18);
  EXPECT_EQ(table(m_us).at(Key::keypadOne), 83);
  EXPECT_FALSE(table(m_french).contains(Key::one));
}

TEST_F(KeyboardLayout, AsksForEveryCodeFrom0To127ButTheSpecialOnes) {
  m_service.setEnabled({m_us});
  start();

  std::vector<sauce::KeyCode> expected;
  for (sauce::KeyCode code = 0; code <= 127; ++code) {
    if (!sauce::specialKeyName(code)) expected.push_back(code);
  }
  EXPECT_EQ(m_service.translated(), expected);
}

TEST_F(KeyboardLayout, HasTheSpecialKeysAtTheirPlacesWhateverTheLayoutTypesThere) {
  m_service.setTexts(m_us, {{36, "b"}, {49, "c"}, {122, "d"}});
  start();

  EXPECT_EQ(table(m_us).at(Key::return_), 36);
  EXPECT_EQ(table(m_us).at(Key::space), 49);
  EXPECT_EQ(table(m_us).at(Key::f1), 122);
  EXPECT_EQ(table(m_us).at(Key::help), 114);
  EXPECT_EQ(table(m_us).at(Key::kana), 104);
  EXPECT_FALSE(table(m_us).contains(Key::b));
}

TEST_F(KeyboardLayout, LeavesOutACodeThatTypesNothing) {
  start();

  EXPECT_FALSE(table(m_us).contains(Key::w));
}

TEST_F(KeyboardLayout, LeavesOutACharacterThatNamesNoKey) {
  m_service.setTexts(m_us, {{19, "\u00E9"}, {0, "a"}});
  start();

  EXPECT_TRUE(std::ranges::none_of(table(m_us), [](const auto& entry) { return entry.second == 19; }));
}

TEST_F(KeyboardLayout, PostsBothNoticesWhenAnotherLayoutWithOtherKeysIsSelected) {
  start();

  select(m_french);

  EXPECT_EQ(m_layout->currentKeyboardLayoutInputSource(), m_french);
  EXPECT_EQ(m_posted, (Posted{"SauceSelectedKeyboardInputSourceChanged", "SauceSelectedKeyboardKeyCodesChanged"}));
}

TEST_F(KeyboardLayout, PostsNothingWhenTheCurrentLayoutIsSelectedAgain) {
  start();

  select(m_us);

  EXPECT_EQ(m_posted, Posted{});
}

TEST_F(KeyboardLayout, TakesTheNewASCIICapableSourceEvenWhenTheLayoutStays) {
  start();
  m_service.setASCIICapable(m_french);

  select(m_us);

  EXPECT_EQ(m_layout->currentASCIICapableInputSource(), m_french);
}

TEST_F(KeyboardLayout, PostsNoChangeOfKeysBetweenLayoutsWithIdenticalTables) {
  m_service.setTexts(m_french, {{0, "a"}, {9, "v"}, {12, "q"}, {18, "1"}, {83, "1"}});
  start();

  select(m_french);

  EXPECT_EQ(m_posted, Posted{"SauceSelectedKeyboardInputSourceChanged"});
}

TEST_F(KeyboardLayout, PostsNoChangeOfKeysToOrFromASourceWithoutATable) {
  start();

  select(m_hangul);
  select(m_french);

  EXPECT_EQ(m_posted, (Posted{"SauceSelectedKeyboardInputSourceChanged", "SauceSelectedKeyboardInputSourceChanged"}));
}

TEST_F(KeyboardLayout, MapsASelectedSourceThatHasNoTableYet) {
  const InputSource greek("gr");
  m_service.setTexts(greek, {{12, ";"}});
  start();

  select(greek);

  EXPECT_EQ(table(greek).at(Key::semicolon), 12);
  EXPECT_EQ(m_posted, (Posted{"SauceSelectedKeyboardInputSourceChanged", "SauceSelectedKeyboardKeyCodesChanged"}));
}

TEST_F(KeyboardLayout, KeepsTheTableOfALayoutThatItKnows) {
  start();
  const auto asked = m_service.translated().size();

  select(m_french);
  select(m_us);

  EXPECT_EQ(m_service.translated().size(), asked);
}

TEST_F(KeyboardLayout, MapsAllAnewWhenTheEnabledSourcesChange) {
  start();
  const InputSource greek("gr");
  m_service.setTexts(greek, {{12, ";"}});
  m_service.setTexts(m_us, {{9, "a"}});
  m_service.setEnabled({m_us, greek});

  m_service.tellEnabledChanged();

  EXPECT_EQ(m_posted, Posted{"SauceEnabledKeyboardInputSourcesChanged"});
  EXPECT_EQ(m_layout->inputSources(), (std::vector{m_us, greek}));
  EXPECT_EQ(m_layout->mappedKeyCodes().size(), 2U);
  EXPECT_EQ(table(m_us).at(Key::a), 9);
  EXPECT_EQ(table(greek).at(Key::semicolon), 12);
}

TEST_F(KeyboardLayout, HasTheNewStateWhenItPosts) {
  start();
  std::vector<InputSource> seen;
  const auto observation = m_notificationCenter.observe(
      "SauceSelectedKeyboardInputSourceChanged",
      [this, &seen](const foundation::Notification&) { seen.push_back(m_layout->currentKeyboardLayoutInputSource()); });

  select(m_french);

  EXPECT_EQ(seen, std::vector{m_french});
}

TEST_F(KeyboardLayout, SurvivesASelectionByOneWhoIsToldOfASelection) {
  start();
  const auto observation =
      m_notificationCenter.observe("SauceSelectedKeyboardInputSourceChanged", [this](const foundation::Notification&) {
        if (m_layout->currentKeyboardLayoutInputSource() == m_french) select(m_us);
      });

  select(m_french);

  EXPECT_EQ(m_layout->currentKeyboardLayoutInputSource(), m_us);
  EXPECT_EQ(std::ranges::count(m_posted, "SauceSelectedKeyboardInputSourceChanged"), 2);
}

TEST_F(KeyboardLayout, HearsNothingMoreWhenItIsGone) {
  start();
  m_layout.reset();

  select(m_french);
  m_service.tellEnabledChanged();

  EXPECT_EQ(m_posted, Posted{});
}

using KeyboardLayoutDeathTest = KeyboardLayout;

TEST_F(KeyboardLayoutDeathTest, StopsTheProcessWithoutACurrentLayout) {
  m_service.setSelected(std::nullopt);

  EXPECT_DEATH(start(), "There is no current keyboard layout");
}

TEST_F(KeyboardLayoutDeathTest, StopsTheProcessWithoutACurrentASCIICapableSource) {
  m_service.setASCIICapable(std::nullopt);

  EXPECT_DEATH(start(), "There is no current ASCII-capable input source");
}

TEST_F(KeyboardLayoutDeathTest, StopsTheProcessWhenTheCurrentLayoutIsLost) {
  start();
  m_service.setSelected(std::nullopt);

  EXPECT_DEATH(m_service.tellSelectedChanged(), "There is no current keyboard layout");
}

TEST_F(KeyboardLayoutDeathTest, StopsTheProcessWhenTheCurrentASCIICapableSourceIsLost) {
  start();
  m_service.setASCIICapable(std::nullopt);

  EXPECT_DEATH(m_service.tellSelectedChanged(), "There is no current ASCII-capable input source");
}

}  // namespace
