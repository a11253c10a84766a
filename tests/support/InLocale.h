#pragma once

#include <unicode/locid.h>

namespace testsupport {

/// Makes a locale the default one for as long as it lives. Main thread.
class InLocale final {
 public:
  explicit InLocale(const char* name) {
    UErrorCode status = U_ZERO_ERROR;
    icu::Locale::setDefault(icu::Locale(name), status);
  }
  InLocale(const InLocale&) = delete;
  InLocale& operator=(const InLocale&) = delete;
  ~InLocale() {
    UErrorCode status = U_ZERO_ERROR;
    icu::Locale::setDefault(m_before, status);
  }

 private:
  icu::Locale m_before = icu::Locale::getDefault();
};

}  // namespace testsupport
