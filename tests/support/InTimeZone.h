#pragma once

#include <unicode/timezone.h>

#include <memory>

namespace testsupport {

/// Makes a time zone the default one for as long as it lives. Main thread.
class InTimeZone final {
 public:
  explicit InTimeZone(const char* name) { icu::TimeZone::adoptDefault(icu::TimeZone::createTimeZone(name)); }
  InTimeZone(const InTimeZone&) = delete;
  InTimeZone& operator=(const InTimeZone&) = delete;
  ~InTimeZone() { icu::TimeZone::setDefault(*m_before); }

 private:
  const std::unique_ptr<icu::TimeZone> m_before{icu::TimeZone::createDefault()};
};

}  // namespace testsupport
