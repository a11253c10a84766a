#include "Quillmonger/detection/DateShape.h"

#include <unicode/dcfmtsym.h>
#include <unicode/smpdtfmt.h>

#include <string>
#include <vector>

#include "Quillmonger/detection/DatePatterns.h"
#include "tests/Quillmonger/detection/LocaleFixture.h"
#include "tests/Quillmonger/detection/RandomText.h"

namespace quillmonger {

namespace {

const std::vector<const char16_t*> patterns{u"EEEE, dd-MMM-yy HH:mm:ss xxxx", u"yyyy-MM-dd'T'HH:mm:ssZ", u"yyyy-MM-dd",
                                            u"MM/dd/yyyy", u"dd/MM/yyyy"};

class DateShapeTest : public LocaleFixture {
 protected:
  // As the default locale writes a moment from about 1900 to 2100.
  static std::string written(const char16_t* pattern, double fraction) {
    UErrorCode status = U_ZERO_ERROR;
    icu::Locale locale = icu::Locale::getDefault();
    locale.setKeywordValue("calendar", "gregorian", status);
    const icu::SimpleDateFormat formatter(pattern, locale, status);
    icu::UnicodeString units;
    formatter.format((fraction * 200 - 70) * 365.25 * 86400 * 1000, units);
    std::string text;
    units.toUTF8String(text);
    return text;
  }
};

TEST_F(DateShapeTest, LetsEveryDateOfEveryLocaleThrough) {
  std::int32_t count = 0;
  const icu::Locale* const locales = icu::Locale::getAvailableLocales(count);
  RandomText random(1);
  for (std::int32_t i = 0; i < count; ++i) {
    setLocale(locales[i].getName());
    for (const char16_t* const pattern : {patterns[0], patterns[1]}) {
      const std::string text = written(pattern, random.fraction());
      EXPECT_TRUE(isShapedLikeDatePattern(text)) << locales[i].getName() << ": " << text;
    }
  }
}

TEST_F(DateShapeTest, LetsThePowersOfTenOfEveryLocaleThrough) {
  std::int32_t count = 0;
  const icu::Locale* const locales = icu::Locale::getAvailableLocales(count);
  for (std::int32_t i = 0; i < count; ++i) {
    UErrorCode status = U_ZERO_ERROR;
    const icu::DecimalFormatSymbols symbols(locales[i], status);
    std::string text = "2";
    symbols.getConstSymbol(icu::DecimalFormatSymbols::kExponentialSymbol).toUTF8String(text);
    EXPECT_TRUE(isShapedLikeDatePattern(text + "3-05-01")) << locales[i].getName() << ": " << text;
  }
}

TEST_F(DateShapeTest, NeverChangesWhatThePatternsRead) {
  const std::vector<std::string> pieces{
      " ",  "-",      "/",  ",", ":",  "T",  "Z", "0",      "1",      "9",      "E",      "e3",  "NaN", "∞",
      "+",  "\u2212", "٣",  "۴", "二", "〇", "½", "\u00A0", "\u200E", "\u200F", "\u061C", "GMT", "UTC", "\u0301",
      "اس", "×10^3",  "\n", "a", "é",  "(",  ".", "٫",      "\uFE0F", "\u3000", "Е",      "'",   "Mai"};
  RandomText random(2);
  int dates = 0;
  for (const auto* const locale : {"en_US", "en_GB", "de_DE", "fr_FR", "ar_EG", "fa_IR", "ja_JP", "th_TH", "tr_TR",
                                   "ru_RU", "he_IL", "zh_CN@numbers=hanidec"}) {
    setLocale(locale);
    for (int i = 0; i < 250; ++i) {
      std::string text = written(random.oneOf(patterns), random.fraction());
      for (std::size_t changes = random.below(3); changes > 0; --changes)
        text = random.mutated(text, pieces);
      const bool isDate = readDatePattern(text).has_value();
      ASSERT_TRUE(!isDate || isShapedLikeDatePattern(text)) << locale << ": " << text;
      dates += isDate ? 1 : 0;
    }
  }
  EXPECT_GT(dates, 800);
}

TEST_F(DateShapeTest, SparesTheFormattersOrdinaryTexts) {
  for (const auto* const text :
       {"", "12", "The meeting on 12 May 2024 at 10:30 is moved to room 45, please come early.",
        "https://example.org/2024/05/01/a-well-known-page", "550e8400-e29b-41d4-a716-446655440000",
        "12 monkeys, 3-4 of 5-6", "2024-05-01 12:30:45", "2024-05-01 is the day",
        "Встреча 2024-05-01 в 10:30, комната 5-6-7", "5 апреля 2024-05-01", "会议在2024-05-01",
        "Wed, 01 May 2024 12:30:45 +0000", "key: value, other-key: 10:30:45, third-key", "192.168.0.1"}) {
    EXPECT_FALSE(isShapedLikeDatePattern(text)) << text;
  }
}

}  // namespace

}  // namespace quillmonger
