#include <cstddef>
#include <cstdint>
#include <string>

#include "Foundation/Text.h"
#include "Quillmonger/detection/JsonDetector.h"
#include "tests/fuzz/Check.h"

// What is recognised can be rewritten both ways, and stays the same document: rewritten again it is the same text.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  const quillmonger::JsonDetector detector;
  const std::string text = foundation::toValidUtf8({reinterpret_cast<const char*>(bytes), size});
  const auto found = detector.detect(text);
  if (!found) return 0;
  using Result = quillmonger::JsonDetector::JsonResult;
  const auto& result = dynamic_cast<const Result&>(*found);
  fuzz::check(result.json == text);
  const auto pretty = result.beautified();
  const auto compact = result.minified();
  fuzz::check(pretty && compact);
  fuzz::check(detector.detect(*pretty) && detector.detect(*compact));
  fuzz::check(Result(*pretty).minified() == compact);
  fuzz::check(Result(*compact).beautified() == pretty);
  return 0;
}
