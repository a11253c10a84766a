#include "Quillmonger/detection/OculetResults.h"

namespace quillmonger {

namespace {

template <typename Result>
const Result* firstOf(const OculetResults& results) {
  for (const auto& result : results) {
    if (const auto* found = dynamic_cast<const Result*>(result.get())) return found;
  }
  return nullptr;
}

}  // namespace

const DateDetector::DateResult* dateResult(const OculetResults& results) {
  return firstOf<DateDetector::DateResult>(results);
}

const Color* colorResult(const OculetResults& results) {
  const auto* result = firstOf<ColorDetector::ColorResult>(results);
  return result == nullptr ? nullptr : &result->color;
}

const JsonDetector::JsonResult* jsonResult(const OculetResults& results) {
  return firstOf<JsonDetector::JsonResult>(results);
}

}  // namespace quillmonger
