#include <cstdint>
#include <optional>
#include <string>

#include "Quillmonger/detection/DateDetector.h"
#include "tests/Quillmonger/detection/LocaleFixture.h"

namespace quillmonger {

namespace {

constexpr double march4 = 1709510400;
constexpr double april3 = 1712102400;
constexpr double may1 = 1714521600;
constexpr double noonOfMay1 = 1714566645;  // 12:30:45

class DateLocaleTest : public LocaleFixture {
 protected:
  // Seconds since 1970.
  static std::optional<double> detect(std::string_view text) {
    const auto result = DateDetector().detect(text);
    if (!result) return std::nullopt;
    return dynamic_cast<const DateDetector::DateResult&>(*result).date.time_since_epoch().count();
  }
};

TEST_F(DateLocaleTest, TheMonthComesFirstWhereTheIdentifierEndsInUS) {
  for (const auto* const locale : {"en_US", "es_US"}) {
    setLocale(locale);
    EXPECT_EQ(detect("03/04/2024"), march4) << locale;
  }
  for (const auto* const locale :
       {"en_GB", "de_DE", "fr_FR", "en_CA", "ja_JP", "tr_TR", "el_GR", "ar_EG", "en_US_POSIX", "en"}) {
    setLocale(locale);
    EXPECT_EQ(detect("03/04/2024"), april3) << locale;
  }
}

TEST_F(DateLocaleTest, TheOtherOrderIsReadWhereTheFirstNamesNoDay) {
  EXPECT_EQ(detect("31/05/2024"), 1717113600);
  setLocale("en_GB");
  EXPECT_EQ(detect("05/31/2024"), 1717113600);
}

TEST_F(DateLocaleTest, TheLongFormIsInTheWordsOfTheLocale) {
  setLocale("de_DE");
  EXPECT_EQ(detect("Mittwoch, 01-Mai-24 12:30:45 +0000"), noonOfMay1);
  EXPECT_EQ(detect("Wednesday, 01-May-24 12:30:45 +0000"), std::nullopt);
  setLocale("fr_FR");
  EXPECT_EQ(detect("mercredi, 01-mai-24 12:30:45 +0000"), noonOfMay1);
  setLocale("ja_JP");
  EXPECT_EQ(detect("水曜日, 01-5月-24 12:30:45 +0000"), noonOfMay1);
  setLocale("tr_TR");
  EXPECT_EQ(detect("Çarşamba, 01-May-24 12:30:45 +0000"), noonOfMay1);
  setLocale("el_GR");
  EXPECT_EQ(detect("Τετάρτη, 01-Μαΐ-24 12:30:45 +0000"), noonOfMay1);
  setLocale("ar_EG");
  EXPECT_EQ(detect("الأربعاء, ٠١-مايو-٢٤ ١٢:٣٠:٤٥ +0000"), noonOfMay1);
}

TEST_F(DateLocaleTest, NumbersMayBeInTheDigitsOfAnyScript) {
  for (const auto* const locale : {"ar_EG", "fa_IR", "en_US"}) {
    setLocale(locale);
    EXPECT_EQ(detect("2024-05-01"), may1) << locale;
    EXPECT_EQ(detect("٢٠٢٤-٠٥-٠١"), may1) << locale;
    EXPECT_EQ(detect("۲۰۲۴-۰۵-۰۱"), may1) << locale;
  }
}

TEST_F(DateLocaleTest, AYearIsOneOfTheGregorianCalendarEverywhere) {
  for (const auto* const locale :
       {"th_TH", "fa_IR", "ar_SA", "ja_JP", "ja_JP@calendar=japanese", "he_IL@calendar=hebrew"}) {
    setLocale(locale);
    EXPECT_EQ(detect("2024-05-01"), may1) << locale;
  }
}

TEST_F(DateLocaleTest, TheIsoFormDoesNotDependOnTheLocale) {
  for (const auto* const locale : {"en_US", "ar_EG", "fa_IR", "th_TH", "tr_TR"}) {
    setLocale(locale);
    EXPECT_EQ(detect("2024-05-01T12:30:45Z"), noonOfMay1) << locale;
  }
}

TEST_F(DateLocaleTest, AnIntegerDoesNotDependOnTheLocale) {
  for (const auto* const locale : {"en_US", "de_DE", "tr_TR", "el_GR", "ar_EG", "ja_JP"}) {
    setLocale(locale);
    EXPECT_EQ(detect("1700000000123"), 1700000000) << locale;
    EXPECT_EQ(detect("-1"), -1) << locale;
    EXPECT_EQ(detect("99999999999999999999"), std::nullopt) << locale;
  }
}

TEST_F(DateLocaleTest, ADayThatDoesNotExistIsNoDateInAnyLocale) {
  for (const auto* const locale : {"en_US", "de_DE", "tr_TR", "el_GR", "ar_EG", "ja_JP"}) {
    setLocale(locale);
    EXPECT_EQ(detect("2024-02-30"), std::nullopt) << locale;
    EXPECT_EQ(detect("30/02/2024"), std::nullopt) << locale;
    EXPECT_EQ(detect(""), std::nullopt) << locale;
    EXPECT_EQ(detect("12a"), std::nullopt) << locale;
  }
}

TEST_F(DateLocaleTest, AChangeOfTheLocaleCountsFromTheNextText) {
  EXPECT_EQ(detect("03/04/2024"), march4);
  setLocale("en_GB");
  EXPECT_EQ(detect("03/04/2024"), april3);
}

}  // namespace

}  // namespace quillmonger
