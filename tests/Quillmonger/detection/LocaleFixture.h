#pragma once

#include <gtest/gtest.h>
#include <unicode/locid.h>
#include <unicode/timezone.h>

#include <memory>

namespace quillmonger {

/// Begins in the American locale and in UTC, and puts the defaults back at the end.
class LocaleFixture : public testing::Test {
 protected:
  LocaleFixture() {
    setLocale("en_US");
    setTimeZone("UTC");
  }
  ~LocaleFixture() override {
    UErrorCode status = U_ZERO_ERROR;
    icu::Locale::setDefault(m_locale, status);
    icu::TimeZone::setDefault(*m_timeZone);
  }
  LocaleFixture(const LocaleFixture&) = delete;
  LocaleFixture& operator=(const LocaleFixture&) = delete;

  static void setLocale(const char* name) {
    UErrorCode status = U_ZERO_ERROR;
    icu::Locale::setDefault(icu::Locale(name), status);
    ASSERT_TRUE(U_SUCCESS(status));
  }
  static void setTimeZone(const char* name) { icu::TimeZone::adoptDefault(icu::TimeZone::createTimeZone(name)); }

 private:
  const icu::Locale m_locale = icu::Locale::getDefault();
  const std::unique_ptr<icu::TimeZone> m_timeZone{icu::TimeZone::createDefault()};
};

}  // namespace quillmonger
