// quillmonger-video FILE WIDTH HEIGHT: writes the file's pictures in that size to standard output, one for each byte
// that it reads from standard input, and begins again after the last. Before each stand two numbers of 32 bits: for how
// many microseconds it is to be shown, and of how many bytes it consists; none are those of the picture before it.
// Ends with its input.

extern "C" {
#include <libavutil/log.h>
}
#include <unistd.h>

#include <array>
#include <cerrno>
#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "Platform/video/decoder/VideoFile.h"

namespace {

// 0 for anything but a number.
int number(std::string_view text) {
  int value = 0;
  const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), value);
  return failure == std::errc() && end == text.data() + text.size() ? value : 0;
}

bool isNextWanted() {
  char byte = 0;
  ssize_t count = 0;
  do {
    count = read(STDIN_FILENO, &byte, 1);
  } while (count < 0 && errno == EINTR);
  return count == 1;
}

bool writeAll(std::span<const std::uint8_t> bytes) {
  while (!bytes.empty()) {
    const ssize_t count = write(STDOUT_FILENO, bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return false;
    bytes = bytes.subspan(static_cast<std::size_t>(count));
  }
  return true;
}

bool writeNumbers(const std::array<std::uint32_t, 2>& numbers) {
  return writeAll({reinterpret_cast<const std::uint8_t*>(numbers.data()), sizeof numbers});
}

}  // namespace

int main(int argc, char** argv) {
  av_log_set_level(AV_LOG_QUIET);
  if (argc != 4) return EXIT_FAILURE;
  const auto file = decoder::VideoFile::open(argv[1], {number(argv[2]), number(argv[3])});
  if (!file) return EXIT_FAILURE;
  const auto interval = static_cast<std::uint32_t>(file->interval().count());
  std::vector<std::uint8_t> shown;
  while (isNextWanted()) {
    if (!file->advance()) return EXIT_FAILURE;
    // A recording of a screen mostly stands still.
    const bool isNew = file->pixels() != shown;
    const auto size = isNew ? static_cast<std::uint32_t>(file->pixels().size()) : 0;
    if (!writeNumbers({interval, size}) || (isNew && !writeAll(file->pixels()))) return EXIT_FAILURE;
    if (isNew) shown = file->pixels();
  }
  return EXIT_SUCCESS;
}
