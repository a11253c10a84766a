#include "Quillmonger/search/AsciiText.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace quillmonger {

namespace {

constexpr std::size_t nowhere = std::string_view::npos;

// Branches would keep the compiler from treating many letters at once.
constexpr char lowered(char letter) {
  const auto fromA = static_cast<unsigned char>(letter - 'A');
  return static_cast<char>(letter + (fromA < 26 ? 'a' - 'A' : 0));
}

}  // namespace

bool isAscii(std::string_view text) {
  constexpr std::size_t blockSize = 256;
  while (!text.empty()) {
    unsigned char bits = 0;
    for (const char byte : text.substr(0, blockSize))
      bits = static_cast<unsigned char>(bits | static_cast<unsigned char>(byte));
    if (bits >= 0x80U) return false;
    text.remove_prefix(std::min(blockSize, text.size()));
  }
  return true;
}

void appendLowered(std::string& all, std::string_view text) {
  const std::size_t start = all.size();
  all.resize(start + text.size());
  std::transform(text.begin(), text.end(), all.begin() + static_cast<std::ptrdiff_t>(start), lowered);
}

std::size_t findBytes(std::string_view text, std::string_view bytes, std::size_t from) {
  if (from > text.size()) return nowhere;
  // The C library's search is several times as fast as the standard library's.
  const void* const found = memmem(text.data() + from, text.size() - from, bytes.data(), bytes.size());
  return found == nullptr ? nowhere : static_cast<std::size_t>(static_cast<const char*>(found) - text.data());
}

// In pieces that stay in the processor's cache, each overlapping the next by what a hit could reach over.
std::size_t findLowered(std::string_view text, std::string_view term, std::size_t from) {
  std::array<char, std::size_t{16} << 10U> piece;  // NOLINT(cppcoreguidelines-pro-type-member-init): written below
  if (term.empty() || term.size() > piece.size() / 2) {
    std::string all;
    appendLowered(all, text);
    return all.find(term, from);
  }
  while (text.size() >= from + term.size()) {
    const auto part = text.substr(from, piece.size());
    std::transform(part.begin(), part.end(), piece.begin(), lowered);
    const std::size_t at = findBytes({piece.data(), part.size()}, term);
    if (at != nowhere) return from + at;
    from += part.size() - (term.size() - 1);
  }
  return nowhere;
}

}  // namespace quillmonger
