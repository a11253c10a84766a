#pragma once

#include <cstddef>

namespace quillmonger {

/// How a list is shared out among the workers of one search: one worker for a short list, else at most two. The last
/// slice takes the remainder. Any thread.
class SearchSlices final {
 public:
  /// No processor for a long list stops the process.
  SearchSlices(std::size_t itemCount, std::size_t processorCount);

  /// At least 1.
  [[nodiscard]] std::size_t count() const { return m_count; }
  [[nodiscard]] std::size_t start(std::size_t slice) const { return slice * (m_itemCount / m_count); }
  /// One past the slice's last item.
  [[nodiscard]] std::size_t end(std::size_t slice) const;

 private:
  std::size_t m_itemCount;
  std::size_t m_count;
};

}  // namespace quillmonger
