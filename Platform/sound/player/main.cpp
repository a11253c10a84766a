// quillmonger-sound RATE CHANNELS: plays the 16-bit samples that it reads from standard input, lower byte first, and
// ends. Says nothing where there is no sound service.

#include <pulse/simple.h>
#include <unistd.h>

#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <iterator>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace {

// A service that hangs must not keep this program for ever.
constexpr unsigned longestLife = 30;

std::optional<std::uint32_t> number(std::string_view text) {
  std::uint32_t value = 0;
  const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (failure != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return value;
}

struct Ending {
  void operator()(pa_simple* stream) const { pa_simple_free(stream); }
};

bool play(const pa_sample_spec& format, const std::string& samples) {
  // Room for all of it at once: no later write can come too late.
  pa_buffer_attr buffer{};
  buffer.maxlength = static_cast<std::uint32_t>(-1);
  buffer.tlength = static_cast<std::uint32_t>(samples.size());
  buffer.prebuf = static_cast<std::uint32_t>(-1);
  buffer.minreq = static_cast<std::uint32_t>(-1);
  buffer.fragsize = static_cast<std::uint32_t>(-1);
  const std::unique_ptr<pa_simple, Ending> stream(pa_simple_new(nullptr, "Quillmonger", PA_STREAM_PLAYBACK, nullptr,
                                                                "Sound effect", &format, nullptr, &buffer, nullptr));
  return stream && pa_simple_write(stream.get(), samples.data(), samples.size(), nullptr) == 0 &&
         pa_simple_drain(stream.get(), nullptr) == 0;
}

}  // namespace

int main(int argc, char** argv) {
  alarm(longestLife);
  // Desktops have a volume of its own for sounds of this kind.
  setenv("PULSE_PROP", "media.role=event", 1);
  const auto rate = argc == 3 ? number(argv[1]) : std::nullopt;
  const auto channels = argc == 3 ? number(argv[2]) : std::nullopt;
  if (!rate || !channels) return EXIT_FAILURE;
  const pa_sample_spec format{PA_SAMPLE_S16LE, *rate, static_cast<std::uint8_t>(*channels)};
  if (pa_sample_spec_valid(&format) == 0) return EXIT_FAILURE;
  const std::string samples{std::istreambuf_iterator<char>(std::cin), {}};
  return play(format, samples) ? EXIT_SUCCESS : EXIT_FAILURE;
}
