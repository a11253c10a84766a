#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "Quillmonger/detection/OculetDetectable.h"

namespace quillmonger {

/// Recognises a text that is one JSON object or array from its first character to its last. What is wrong with a text
/// in brackets is printed, without a word of the text.
class JsonDetector final : public OculetDetectable {
 public:
  struct JsonResult final : OculetDetectionResult {
    explicit JsonResult(std::string_view text) : json(text) {}

    /// The document with a line a value, and on one line. Keys keep their order, numbers their digits. Nothing, and a
    /// printed line that says why, if `json` is no JSON or the document would become longer than 256 MiB.
    [[nodiscard]] std::optional<std::string> beautified() const;
    [[nodiscard]] std::optional<std::string> minified() const;

    const std::string json;  ///< exactly as it was offered
  };
  using DetectionResult = JsonResult;

  [[nodiscard]] std::unique_ptr<const OculetDetectionResult> detect(std::string_view text) const override;
  [[nodiscard]] bool mayDetect(std::string_view start) const override;
};

}  // namespace quillmonger
