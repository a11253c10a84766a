#pragma once

#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "Quillmonger/history/PictureReading.h"

namespace testsupport {

/// Takes the bytes that the test named for pictures, and counts how often it had to read.
class FakePictureReading final : public quillmonger::PictureReading {
 public:
  [[nodiscard]] std::optional<quillmonger::PictureSize> size(const foundation::Data& picture) const override {
    ++m_sizeCount;
    const auto found = m_pictures.find(*picture.bytes());
    return found == m_pictures.end() ? std::nullopt : std::optional(found->second.first);
  }
  [[nodiscard]] std::optional<std::vector<std::uint32_t>> pixels(const foundation::Data& picture,
                                                                 int edge) const override {
    ++m_pixelsCount;
    const auto found = m_pictures.find(*picture.bytes());
    if (found == m_pictures.end()) return std::nullopt;
    const auto& pattern = found->second.second;
    std::vector<std::uint32_t> pixels;
    for (std::size_t index = 0; index < static_cast<std::size_t>(edge * edge); ++index)
      pixels.push_back(pattern[index % pattern.size()]);
    return pixels;
  }

  /// `pattern`: the premultiplied pixels that repeat all over the picture.
  void setPicture(const std::string& bytes, quillmonger::PictureSize size, std::vector<std::uint32_t> pattern = {0}) {
    m_pictures.insert_or_assign(bytes, std::pair(size, std::move(pattern)));
  }
  [[nodiscard]] int sizeCount() const { return m_sizeCount; }
  [[nodiscard]] int pixelsCount() const { return m_pixelsCount; }

 private:
  std::map<std::string, std::pair<quillmonger::PictureSize, std::vector<std::uint32_t>>> m_pictures;
  mutable int m_sizeCount = 0;
  mutable int m_pixelsCount = 0;
};

}  // namespace testsupport
