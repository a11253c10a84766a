#pragma once

#include <memory>
#include <string_view>

#include "Quillmonger/detection/OculetDetectionResult.h"

namespace quillmonger {

/// Recognises one kind of structured value in a text. Stateless once made: any thread, several at once.
class OculetDetectable {
 public:
  OculetDetectable() = default;
  OculetDetectable(const OculetDetectable&) = delete;
  OculetDetectable& operator=(const OculetDetectable&) = delete;
  virtual ~OculetDetectable() = default;

  /// Null for a text that is no such value. `text` is valid UTF-8 of any length, and most texts are no such value:
  /// a detector says so at a glance.
  [[nodiscard]] virtual std::unique_ptr<const OculetDetectionResult> detect(std::string_view text) const = 0;
  /// Whether a text of many thousand bytes may be such a value, as far as its start tells. `start` has some hundred
  /// bytes, cut between characters.
  [[nodiscard]] virtual bool mayDetect(std::string_view start) const = 0;
};

}  // namespace quillmonger
