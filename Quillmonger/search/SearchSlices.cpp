#include "Quillmonger/search/SearchSlices.h"

#include <algorithm>

#include "Foundation/Fatal.h"

namespace quillmonger {

namespace {

constexpr std::size_t longEnoughToShare = 500;
constexpr std::size_t mostWorkers = 2;

}  // namespace

SearchSlices::SearchSlices(std::size_t itemCount, std::size_t processorCount)
    : m_itemCount(itemCount), m_count(itemCount >= longEnoughToShare ? std::min(processorCount, mostWorkers) : 1) {
  if (m_count == 0) foundation::stopProcess("A search needs a processor.");
}

std::size_t SearchSlices::end(std::size_t slice) const { return slice + 1 == m_count ? m_itemCount : start(slice + 1); }

}  // namespace quillmonger
