#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>

#include "Foundation/Text.h"
#include "Quillmonger/detection/ColorDetector.h"
#include "Quillmonger/detection/ColorText.h"
#include "tests/fuzz/Check.h"

namespace {

// A component of rgb() that is no 64-bit integer stops the program by design.
bool mayStop(const std::string& text) {
  std::size_t digits = 0;
  for (const char byte : text) {
    digits = byte >= '0' && byte <= '9' ? digits + 1 : 0;
    if (digits > 18 || static_cast<signed char>(byte) < 0) return true;
  }
  return false;
}

}  // namespace

// What is recognised can be written in each notation, and is recognised there again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  static const quillmonger::ColorDetector detector;
  const std::string text = foundation::toValidUtf8({reinterpret_cast<const char*>(bytes), size});
  if (mayStop(text)) return 0;
  const auto found = detector.detect(text);
  if (!found) return 0;
  using Result = quillmonger::ColorDetector::ColorResult;
  const auto color = colorComponents(dynamic_cast<const Result&>(*found).color, quillmonger::ColorSpace::genericRGB);
  const auto hex = hexString(color);
  fuzz::check(detector.detect(hex) && detector.detect(rgbString(color)));
  fuzz::check(detector.detect(hslString(quillmonger::hslFromRGB(color))) != nullptr);
  const auto again = quillmonger::parseHex(hex);
  fuzz::check(again && hexString(*again) == hex && rgbString(*again) == rgbString(color));
  return 0;
}
