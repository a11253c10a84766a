#include "Platform/keyboard/XkbInputSources.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

namespace {

using platform::XkbInputSources;
using platform::XkbKeymap;
using sauce::InputSource;

std::vector<std::string> identifiers(const std::vector<InputSource>& sources) {
  std::vector<std::string> result;
  for (const InputSource& source : sources)
    result.push_back(source.id);
  return result;
}

TEST(XkbInputSources, DescribeEachLayoutOfTheKeymap) {
  const XkbInputSources sources(XkbKeymap::compile("us,ru"), {"us", "ru"}, 1);

  ASSERT_EQ(identifiers(sources.enabled()), (std::vector<std::string>{"us", "ru"}));
  const InputSource russian = sources.enabled().back();
  EXPECT_EQ(russian.localizedName, "Russian");
  EXPECT_EQ(russian.modeID, std::nullopt);
  EXPECT_FALSE(russian.isASCIICapable);
  EXPECT_TRUE(russian.isEnableCapable);
  EXPECT_TRUE(russian.isSelectCapable);
  EXPECT_TRUE(russian.isEnabled);
  EXPECT_TRUE(russian.isSelected);
  EXPECT_TRUE(sources.enabled().front().isASCIICapable);
  EXPECT_FALSE(sources.enabled().front().isSelected);
}

TEST(XkbInputSources, AreCalledByTheLayoutsOwnNamesWithoutIdentifiers) {
  const XkbInputSources sources(XkbKeymap::compile("us,ru"), {"us"}, 0);

  EXPECT_EQ(identifiers(sources.enabled()), (std::vector<std::string>{"English (US)", "Russian"}));
}

TEST(XkbInputSources, LeaveOutIdentifiersThatNoLayoutHas) {
  const XkbInputSources sources(XkbKeymap::compile("us"), {"us", "ru"}, 0);

  EXPECT_EQ(identifiers(sources.enabled()), std::vector<std::string>{"us"});
}

TEST(XkbInputSources, TranslateByTheLayoutOfTheSource) {
  const XkbInputSources sources(XkbKeymap::compile("us,fr"), {"us", "fr"}, 0);

  EXPECT_EQ(sources.translate(InputSource("us"), 12, 0), "q");
  EXPECT_EQ(sources.translate(InputSource("fr"), 12, 0), "a");
  EXPECT_EQ(sources.translate(InputSource("fr"), 12, 0x200), "A");
}

TEST(XkbInputSources, KnowNothingOfAnotherSource) {
  const XkbInputSources sources(XkbKeymap::compile("us"), {"us"}, 0);

  EXPECT_FALSE(sources.hasLayoutData(InputSource("fr")));
  EXPECT_EQ(sources.translate(InputSource("fr"), 12, 0), std::nullopt);
}

TEST(XkbInputSources, TakeALatinLayoutOfTheKeymapForASCII) {
  XkbInputSources sources(XkbKeymap::compile("ru,de,fr"), {"ru", "de", "fr"}, 0);
  EXPECT_EQ(sources.asciiCapable().id, "de");

  sources.select(2);

  EXPECT_EQ(sources.asciiCapable().id, "fr");
}

TEST(XkbInputSources, LetTheUSLayoutStandInForAMissingLatinOneWithoutEnablingIt) {
  const XkbInputSources sources(XkbKeymap::compile("ru"), {"ru"}, 0);

  EXPECT_EQ(sources.selected().id, "ru");
  EXPECT_EQ(sources.asciiCapable().id, "us");
  EXPECT_FALSE(sources.asciiCapable().isEnabled);
  EXPECT_EQ(identifiers(sources.enabled()), std::vector<std::string>{"ru"});
  EXPECT_EQ(sources.translate(sources.asciiCapable(), 9, 0), "v");
}

TEST(XkbInputSources, AreTheUSLayoutWhereThereIsNoKeymap) {
  const XkbInputSources sources(std::nullopt, {}, 3);

  EXPECT_EQ(identifiers(sources.enabled()), std::vector<std::string>{"us"});
  EXPECT_EQ(sources.selected().id, "us");
  EXPECT_EQ(sources.asciiCapable().id, "us");
  EXPECT_TRUE(sources.hasLayoutData(sources.selected()));
}

TEST(XkbInputSources, AreStillOneWhereTheSystemHasNoLayoutFilesEither) {
  ASSERT_EQ(setenv("XKB_CONFIG_ROOT", "/nowhere", 1), 0);
  const XkbInputSources sources(std::nullopt, {}, 0);
  unsetenv("XKB_CONFIG_ROOT");

  EXPECT_EQ(sources.selected().id, "us");
  EXPECT_EQ(sources.asciiCapable().id, "us");
  EXPECT_FALSE(sources.hasLayoutData(sources.selected()));
}

TEST(XkbInputSources, SelectTheFirstForALayoutThatIsNotThere) {
  XkbInputSources sources(XkbKeymap::compile("us,ru"), {"us", "ru"}, 1);

  sources.select(static_cast<std::size_t>(-1));

  EXPECT_EQ(sources.selected().id, "us");
}

TEST(XkbInputSources, AreTheSameKeyboardWhateverIsSelected) {
  const XkbInputSources sources(XkbKeymap::compile("us,ru"), {"us", "ru"}, 0);

  EXPECT_TRUE(sources.isSameKeyboard(XkbInputSources(XkbKeymap::compile("us,ru"), {"us", "ru"}, 1)));
}

TEST(XkbInputSources, AreAnotherKeyboardWhenAnIdentifierOrAKeyDiffers) {
  const XkbInputSources sources(XkbKeymap::compile("us"), {"us"}, 0);

  EXPECT_FALSE(sources.isSameKeyboard(XkbInputSources(XkbKeymap::compile("us"), {"american"}, 0)));
  EXPECT_FALSE(sources.isSameKeyboard(XkbInputSources(XkbKeymap::compile("us", "dvorak"), {"us"}, 0)));
  EXPECT_FALSE(sources.isSameKeyboard(XkbInputSources(XkbKeymap::compile("us,us"), {"us", "us"}, 0)));
}

}  // namespace
