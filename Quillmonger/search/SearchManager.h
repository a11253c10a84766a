#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "Foundation/BackgroundQueue.h"
#include "Foundation/RunLoop.h"
#include "Quillmonger/search/SearchResult.h"
#include "Quillmonger/search/SearchSettings.h"
#include "Quillmonger/search/SearchSlices.h"
#include "Quillmonger/search/Searchable.h"
#include "Quillmonger/search/SliceSearch.h"
#include "Quillmonger/search/TextMatcher.h"

namespace quillmonger {

/// Finds the items that a term matches, beside the main thread, and puts them in the order in which they are shown:
/// hits in the text first, then hits in the application's name, each newest first. `T` is a `Searchable`.
/// Made and called on the main thread.
template <typename T>
class SearchManager final {
 public:
  using Completion = std::function<void(SearchResults<T>)>;

  /// All outlive this object, and the work that the queue still does then.
  SearchManager(foundation::BackgroundQueue& queue, foundation::RunLoop& runLoop, const defaults::Defaults& defaults)
      : m_queue(queue), m_runLoop(runLoop), m_defaults(defaults) {}

  /// Returns at once. `completion` runs once on the main queue, unless this object is destroyed before the work
  /// begins. There is no failure, and no way to stop the work: a caller that has lost its interest drops the result.
  /// `items` and `completion` are let go of on the main thread.
  void search(SearchItems<T> items, std::string term, Completion completion) {
    search(std::move(items), std::move(term), searchOptions(m_defaults), std::move(completion));
  }
  /// The same, whatever the user's search settings are.
  void search(SearchItems<T> items, std::string term, const SearchOptions& options, Completion completion) {
    auto work = std::make_shared<const Work>(
        Work{std::move(items), std::move(term), options, std::move(completion), m_isAlive});
    m_queue.async([work = std::move(work), &queue = m_queue, &runLoop = m_runLoop]() mutable {
      SearchResults<T> results;
      if (!work->isManagerAlive.expired()) results = found(*work, queue);
      runLoop.post([work, results = std::move(results)] {
        if (results) work->completion(results);
      });
      // The list as a whole is looked for when it appears, or has changed: time to prepare it for the next term.
      if (isInert(work->term, work->options)) prepare(work->items);
      runLoop.post([work = std::move(work)] {});
    });
  }

 private:
  using Found = typename SliceSearch<T>::Found;
  struct Work {
    SearchItems<T> items;
    std::string term;
    SearchOptions options;
    Completion completion;
    std::weak_ptr<const bool> isManagerAlive;
  };

  static void prepare(const SearchItems<T>& items) {
    for (const auto& chunk : items.chunks())
      static_cast<void>(chunk->prepared());
  }

  static SearchResults<T> found(const Work& work, foundation::BackgroundQueue& queue) {
    const SearchSlices slices(work.items.size(), queue.activeProcessorCount());
    std::vector<std::vector<Found>> parts(slices.count());
    queue.concurrentPerform(slices.count(), [&](std::size_t slice) {
      parts[slice] = SliceSearch<T>(work.term, work.options).find(work.items, slices.start(slice), slices.end(slice));
    });
    auto all = std::move(parts.front());
    for (std::size_t index = 1; index < parts.size(); ++index)
      all.insert(all.end(), parts[index].begin(), parts[index].end());
    return std::make_shared<const SearchResultList<T>>(inOrder(std::move(all)), work.items);
  }

  static std::vector<SearchResult<T>> inOrder(std::vector<Found> found) {
    std::stable_sort(found.begin(), found.end(), [](const Found& first, const Found& second) {
      return std::tuple(first.result.score, second.date) < std::tuple(second.result.score, first.date);
    });
    std::vector<SearchResult<T>> rows;
    rows.reserve(found.size());
    for (const auto& each : found)
      rows.push_back(each.result);
    return rows;
  }

  foundation::BackgroundQueue& m_queue;
  foundation::RunLoop& m_runLoop;
  const defaults::Defaults& m_defaults;
  std::shared_ptr<const bool> m_isAlive = std::make_shared<const bool>(true);
};

}  // namespace quillmonger
