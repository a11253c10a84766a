#include "Foundation/Text.h"

#include <gtest/gtest.h>

namespace {

using foundation::isBlank;
using foundation::isValidUtf8;
using foundation::toValidUtf8;
using foundation::trimmed;

TEST(Text, KnowsWellFormedUtf8) {
  EXPECT_TRUE(isValidUtf8(""));
  EXPECT_TRUE(isValidUtf8("a\u00E9\u20AC\U0001F600"));
  EXPECT_TRUE(isValidUtf8(std::string_view("\0", 1)));
}

TEST(Text, KnowsIllFormedUtf8) {
  EXPECT_FALSE(isValidUtf8("\xFF"));
  EXPECT_FALSE(isValidUtf8("a\xC3"));
  EXPECT_FALSE(isValidUtf8("\xC0\x80"));
  EXPECT_FALSE(isValidUtf8("\xED\xA0\x80"));
  EXPECT_FALSE(isValidUtf8("\xF4\x90\x80\x80"));
}

TEST(Text, ReplacesIllFormedSequencesAlone) {
  EXPECT_EQ(toValidUtf8("a\xFF"
                        "b"),
            "a\uFFFDb");
  EXPECT_EQ(toValidUtf8("\u20AC"), "\u20AC");
}

TEST(Text, TrimsWhiteSpaceAndLineEndsAtTheEnds) {
  EXPECT_EQ(trimmed(" \t\r\n a b \n"), "a b");
  EXPECT_EQ(trimmed("\u00A0\u2003\u2028x\u3000\u200B"), "x");
  EXPECT_EQ(trimmed(""), "");
}

TEST(Text, DoesNotTrimIllFormedBytes) { EXPECT_EQ(trimmed(" \xFF "), "\xFF"); }

TEST(Text, IsBlankWhenNothingIsLeft) {
  EXPECT_TRUE(isBlank(""));
  EXPECT_TRUE(isBlank(" \n\u2029\u200B"));
  EXPECT_FALSE(isBlank(" . "));
  EXPECT_FALSE(isBlank("\xC3"));
}

TEST(Text, ChangesTheCaseOfLettersAsNoLanguageInParticularDoes) {
  EXPECT_EQ(foundation::lowercased("AZ\u00C9\u0394I1"), "az\u00E9\u03B4i1");
  EXPECT_EQ(foundation::uppercased("az\u00E9\u03B4i\u00DF"), "AZ\u00C9\u0394ISS");
}

}  // namespace
