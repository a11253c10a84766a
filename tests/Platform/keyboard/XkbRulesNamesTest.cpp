#include "Platform/keyboard/XkbRulesNames.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using platform::layoutIdentifiers;
using Identifiers = std::vector<std::string>;

std::string property(const std::string& layouts, const std::string& variants) {
  std::string bytes;
  for (const auto& field : {std::string("evdev"), std::string("pc105"), layouts, variants, std::string("caps:escape")})
    bytes += field + '\0';
  return bytes;
}

TEST(XkbRulesNames, NameEachLayoutWithItsVariant) {
  EXPECT_EQ(layoutIdentifiers(property("us,de,ru", ",nodeadkeys,phonetic")),
            (Identifiers{"us", "de(nodeadkeys)", "ru(phonetic)"}));
}

TEST(XkbRulesNames, NeedNoVariant) {
  EXPECT_EQ(layoutIdentifiers(property("us", "")), Identifiers{"us"});
  EXPECT_EQ(layoutIdentifiers(property("us,ru", "dvorak")), (Identifiers{"us(dvorak)", "ru"}));
}

TEST(XkbRulesNames, LeaveOutVariantsThatHaveNoLayout) {
  EXPECT_EQ(layoutIdentifiers(property("us", ",dvorak,x")), Identifiers{"us"});
}

TEST(XkbRulesNames, KeepAVariantThatStandsWithTheLayout) {
  EXPECT_EQ(layoutIdentifiers(property("us(dvorak)", "")), Identifiers{"us(dvorak)"});
}

class NoXkbRulesNames : public testing::TestWithParam<std::string> {};

TEST_P(NoXkbRulesNames, AreReadFromAnythingElse) { EXPECT_EQ(layoutIdentifiers(GetParam()), Identifiers{}); }

INSTANTIATE_TEST_SUITE_P(
    Properties, NoXkbRulesNames,
    testing::Values("", "evdev", std::string("a\0b\0us", 6), std::string(5, '\0'), property("", ""),
                    property("us,", ""), property(",us", ""), property("us ru", ""), property("us\x1B[31m", ""),
                    property("us", "\xFF"), property(std::string(65, 'x'), ""), property("us", std::string(65, 'x')),
                    property("us" + std::string(1024, ','), ""),
                    property("a,b,c,d,e,f,g,h,i,j,k,l,m,n,o,p,q,r,s,t,u,v,w,x,y,z,0,1,2,3,4,5,6", "")));

}  // namespace
