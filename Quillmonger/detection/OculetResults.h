#pragma once

#include <memory>
#include <vector>

#include "Quillmonger/detection/ColorDetector.h"
#include "Quillmonger/detection/DateDetector.h"
#include "Quillmonger/detection/JsonDetector.h"
#include "Quillmonger/detection/OculetDetectionResult.h"

namespace quillmonger {

/// What was recognised in one text, in the order of the detectors.
using OculetResults = std::vector<std::unique_ptr<const OculetDetectionResult>>;

/// The first result of its kind; null if there is none. It lives as long as `results`.
[[nodiscard]] const DateDetector::DateResult* dateResult(const OculetResults& results);
/// The colour of the first such result.
[[nodiscard]] const Color* colorResult(const OculetResults& results);
[[nodiscard]] const JsonDetector::JsonResult* jsonResult(const OculetResults& results);

}  // namespace quillmonger
