#pragma once

#include <memory>
#include <string_view>

#include "Quillmonger/detection/Color.h"
#include "Quillmonger/detection/OculetDetectable.h"

namespace quillmonger {

/// Recognises a colour that a text states as "#rrggbb", "rgb(r, g, b)" or "hsl(h, s%, l%)".
class ColorDetector final : public OculetDetectable {
 public:
  struct ColorResult final : OculetDetectionResult {
    explicit ColorResult(const Color& value) : color(value) {}
    const Color color;  ///< in the generic RGB space, opaque
  };
  using DetectionResult = ColorResult;

  /// Compiles the expressions, once for all texts.
  ColorDetector();
  ColorDetector(const ColorDetector&) = delete;
  ColorDetector& operator=(const ColorDetector&) = delete;
  ~ColorDetector() override;

  /// A component of rgb() that is no 64-bit integer, and a component that rounding takes out of 0 to 1, stop the
  /// process.
  [[nodiscard]] std::unique_ptr<const OculetDetectionResult> detect(std::string_view text) const override;
  [[nodiscard]] bool mayDetect(std::string_view start) const override;

 private:
  struct Expressions;
  const std::unique_ptr<const Expressions> m_expressions;
};

}  // namespace quillmonger
