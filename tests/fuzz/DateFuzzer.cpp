#include <unicode/locid.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "Foundation/Text.h"
#include "Quillmonger/detection/DateDetector.h"

// No text of any kind hangs or stops the reading of dates, in any locale: the first byte chooses one.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  if (size == 0) return 0;
  constexpr std::array<const char*, 8> locales{"en_US", "en_GB", "de_DE", "ar_EG", "fa_IR", "ja_JP", "th_TH", "hi_IN"};
  UErrorCode status = U_ZERO_ERROR;
  icu::Locale::setDefault(icu::Locale(locales[bytes[0] % locales.size()]), status);
  const std::string text = foundation::toValidUtf8({reinterpret_cast<const char*>(bytes) + 1, size - 1});
  static_cast<void>(quillmonger::DateDetector().detect(text));
  return 0;
}
