#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "Foundation/Result.h"

namespace platform {

/// A sound as a WAV file has it: 16-bit samples, of the lower byte first, those of the channels in turn.
struct WavFile {
  std::uint16_t channels = 0;
  /// Samples of each channel in a second.
  std::uint32_t rate = 0;
  /// Whole frames of all channels, in the file's bytes.
  std::string_view samples;

  /// `bytes` are a whole file and outlive the result. Longer ones than 4 MB, other samples than 16-bit, more than two
  /// channels and rates beyond 8 to 192 kHz are refused.
  [[nodiscard]] static foundation::Result<WavFile> parse(std::string_view bytes);
};

/// The samples, each times `factor`, and cut at full scale where that is too loud.
[[nodiscard]] std::string amplified(std::string_view samples, float factor);

}  // namespace platform
