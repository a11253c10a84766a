#pragma once

namespace quillmonger {

/// What a detector has recognised in a text. Immutable; consumers ask for the type they know (`OculetResults.h`).
class OculetDetectionResult {
 public:
  OculetDetectionResult() = default;
  OculetDetectionResult(const OculetDetectionResult&) = delete;
  OculetDetectionResult& operator=(const OculetDetectionResult&) = delete;
  virtual ~OculetDetectionResult() = default;
};

}  // namespace quillmonger
