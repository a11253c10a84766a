#include "Quillmonger/history/LargeJpeg.h"

#include <cstddef>
#include <optional>
#include <string>

namespace quillmonger {

namespace {

constexpr double mostPixels = 256e6;
constexpr double mostBytesHeld = 512.0 * (1 << 20);
constexpr unsigned bytesPerComponent = 2;
constexpr unsigned mostComponents = 4;
constexpr int mostSegments = 1000;

// The beginning of a segment: its marker, its length, and as much as tells what counts here.
class Segment final {
 public:
  Segment(const foundation::Data& picture, std::size_t offset) : m_bytes(picture.part(offset, length)) {}

  [[nodiscard]] bool isWhole() const { return m_bytes.size() == length && at(0) == 0xFF; }
  [[nodiscard]] bool isPadding() const { return at(1) == 0xFF; }
  [[nodiscard]] bool isScan() const { return at(1) == 0xDA; }
  // All but those that define tables lie here.
  [[nodiscard]] bool isFrame() const {
    const unsigned marker = at(1);
    return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
  }
  [[nodiscard]] bool isProgressive() const { return (at(1) & 3U) == 2; }
  [[nodiscard]] std::size_t size() const { return 2 + ((std::size_t{at(2)} << 8U) | at(3)); }
  [[nodiscard]] unsigned scanComponents() const { return at(4); }
  [[nodiscard]] unsigned frameComponents() const { return at(9); }

 private:
  static constexpr std::size_t length = 10;

  [[nodiscard]] unsigned at(std::size_t index) const { return static_cast<unsigned char>(m_bytes[index]); }

  std::string m_bytes;
};

// For each pixel. Absent for a head that is not clear.
std::optional<unsigned> bytesHeld(const foundation::Data& picture) {
  std::optional<Segment> frame;
  std::size_t offset = 2;  // behind the mark of a picture's start
  for (int count = 0; count < mostSegments; ++count) {
    const Segment segment(picture, offset);
    if (!segment.isWhole()) return std::nullopt;
    if (segment.isScan()) {
      if (!frame) return std::nullopt;
      const unsigned components = frame->frameComponents();
      const bool hasMore = frame->isProgressive() || segment.scanComponents() < components;
      return hasMore ? components * bytesPerComponent : 0;
    }
    if (segment.isFrame()) frame = segment;
    offset += segment.isPadding() ? 1 : segment.size();
  }
  return std::nullopt;
}

}  // namespace

bool isTooLargeJpeg(const foundation::Data& picture, double pixels) {
  return pixels > mostPixels ||
         pixels * bytesHeld(picture).value_or(mostComponents * bytesPerComponent) > mostBytesHeld;
}

}  // namespace quillmonger
