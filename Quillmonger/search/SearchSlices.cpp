#include "Quillmonger/search/SearchSlices.h"

#include <algorithm>

namespace quillmonger {

namespace {

constexpr std::size_t longEnoughToShare = 500;
constexpr std::size_t mostWorkers = 2;

}  // namespace

SearchSlices::SearchSlices(std::size_t itemCount, std::size_t processorCount)
    : m_itemCount(itemCount), m_count(itemCount >= longEnoughToShare ? std::min(processorCount, mostWorkers) : 1) {}

std::size_t SearchSlices::end(std::size_t slice) const { return slice + 1 == m_count ? m_itemCount : start(slice + 1); }

}  // namespace quillmonger
