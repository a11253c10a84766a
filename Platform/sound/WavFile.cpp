#include "Platform/sound/WavFile.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace platform {

namespace {

constexpr std::size_t longestFile = 4'000'000;
constexpr std::uint16_t pulseCodeModulation = 1;
constexpr std::uint16_t bitsOfASample = 16;
constexpr std::size_t bytesOfASample = 2;

std::uint32_t number(std::string_view bytes, std::size_t position, std::size_t count) {
  std::uint32_t value = 0;
  for (std::size_t index = count; index > 0; --index)
    value = value << 8 | static_cast<unsigned char>(bytes[position + index - 1]);
  return value;
}

std::uint16_t shortNumber(std::string_view bytes, std::size_t position) {
  return static_cast<std::uint16_t>(number(bytes, position, 2));
}

// The content of the first chunk of that name. The last one may be cut short.
std::optional<std::string_view> chunk(std::string_view bytes, std::string_view name) {
  constexpr std::size_t chunkHead = 8;
  for (std::size_t position = 12; position + chunkHead <= bytes.size();) {
    const std::size_t size = number(bytes, position + 4, 4);
    const auto content = bytes.substr(position + chunkHead, size);
    if (bytes.substr(position, 4) == name) return content;
    position += chunkHead + size + size % 2;
  }
  return std::nullopt;
}

}  // namespace

foundation::Result<WavFile> WavFile::parse(std::string_view bytes) {
  if (bytes.size() > longestFile) return foundation::Error{"the file is too long"};
  if (bytes.substr(0, 4) != "RIFF" || bytes.size() < 12 || bytes.substr(8, 4) != "WAVE") {
    return foundation::Error{"the file is not a WAV file"};
  }
  const auto format = chunk(bytes, "fmt ");
  const auto data = chunk(bytes, "data");
  if (!format || format->size() < 16 || !data) return foundation::Error{"the WAV file is damaged"};
  const WavFile file{shortNumber(*format, 2), number(*format, 4, 4), *data};
  const bool isSupported = shortNumber(*format, 0) == pulseCodeModulation &&
                           shortNumber(*format, 14) == bitsOfASample && file.channels >= 1 && file.channels <= 2 &&
                           file.rate >= 8000 && file.rate <= 192000;
  if (!isSupported) return foundation::Error{"the WAV file has samples of an unsupported kind"};
  const std::size_t frame = bytesOfASample * file.channels;
  return WavFile{file.channels, file.rate, data->substr(0, data->size() / frame * frame)};
}

std::string amplified(std::string_view samples, float factor) {
  std::string louder(samples);
  for (std::size_t position = 0; position + bytesOfASample <= samples.size(); position += bytesOfASample) {
    const auto sample = static_cast<std::int16_t>(shortNumber(samples, position));
    const auto value = std::lround(std::clamp(static_cast<float>(sample) * factor, -32768.0F, 32767.0F));
    louder[position] = static_cast<char>(value & 0xFF);
    louder[position + 1] = static_cast<char>(value >> 8 & 0xFF);
  }
  return louder;
}

}  // namespace platform
