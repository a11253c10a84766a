#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <memory>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include "Foundation/RunLoop.h"
#include "Quillmonger/search/PreparedTexts.h"

namespace quillmonger {

/// Some items, one after the other, and what searches know of them. Immutable, so that searches share it; what is
/// prepared is prepared by the first search that asks. Any thread, but let go of on the main thread, as its items are.
template <typename T>
class SearchChunk final {
 public:
  using Item = std::shared_ptr<T>;

  explicit SearchChunk(std::vector<Item> items) : m_items(std::move(items)) {
    m_dates.reserve(m_items.size());
    std::transform(m_items.begin(), m_items.end(), std::back_inserter(m_dates),
                   [](const Item& item) { return item->creationDate(); });
  }

  [[nodiscard]] const std::vector<Item>& items() const { return m_items; }
  /// The items' dates, beside each other: a long history lies all over the memory.
  [[nodiscard]] const std::vector<foundation::Date>& dates() const { return m_dates; }

  struct Prepared {
    PreparedTexts texts;
    /// For each item, the first item that comes from the same application.
    std::vector<std::size_t> firstOfApp;
  };
  [[nodiscard]] const Prepared& prepared() const {
    std::call_once(m_isPrepared, [this] { prepare(); });
    return m_prepared;
  }

 private:
  void prepare() const {
    std::vector<std::string> keys;
    std::vector<std::size_t> firsts;
    for (std::size_t index = 0; index < m_items.size(); ++index) {
      m_prepared.texts.add(m_items[index]->shortText(PreparedTexts::longestText));
      auto key = m_items[index]->appKey();
      // A few applications at most, and mostly the one before.
      const auto known = std::find(keys.rbegin(), keys.rend(), key);
      const auto place = static_cast<std::size_t>(std::distance(known, keys.rend()));
      if (place == 0) {
        keys.push_back(std::move(key));
        firsts.push_back(index);
      }
      m_prepared.firstOfApp.push_back(place == 0 ? index : firsts[place - 1]);
    }
  }

  std::vector<Item> m_items;
  std::vector<foundation::Date> m_dates;
  mutable std::once_flag m_isPrepared;
  mutable Prepared m_prepared;
};

}  // namespace quillmonger
