#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <iterator>
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
    auto work = std::make_shared<Work>(
        Work{std::move(items), std::move(term), searchOptions(m_defaults), std::move(completion), m_isAlive});
    m_queue.async([work = std::move(work), &queue = m_queue, &runLoop = m_runLoop]() mutable {
      SearchResults<T> results;
      if (!work->isManagerAlive.expired()) results = found(*work, queue);
      runLoop.post([work = std::move(work), results = std::move(results)] {
        if (results) work->completion(results);
      });
    });
  }

 private:
  using Found = std::vector<SearchResult<T>>;
  struct Work {
    SearchItems<T> items;
    std::string term;
    SearchOptions options;
    Completion completion;
    std::weak_ptr<const bool> isManagerAlive;
  };

  static SearchResults<T> found(const Work& work, foundation::BackgroundQueue& queue) {
    const SearchSlices slices(work.items->size(), queue.activeProcessorCount());
    std::vector<Found> parts(slices.count());
    queue.concurrentPerform(slices.count(), [&](std::size_t slice) {
      parts[slice] = foundIn(work, slices.start(slice), slices.end(slice));
    });
    Found results = std::move(parts.front());
    for (std::size_t index = 1; index < parts.size(); ++index) {
      std::move(parts[index].begin(), parts[index].end(), std::back_inserter(results));
    }
    return inOrder(results);
  }

  // The dates are read once for each result, and not at each comparison: a long history lies all over the memory.
  static SearchResults<T> inOrder(Found& results) {
    struct Place {
      double score;
      foundation::Date date;
      std::size_t index;
    };
    std::vector<Place> places;
    places.reserve(results.size());
    for (const auto& result : results)
      places.push_back({result.score, result.item->creationDate(), places.size()});
    std::sort(places.begin(), places.end(), [](const Place& first, const Place& second) {
      return std::tuple(first.score, second.date, first.index) < std::tuple(second.score, first.date, second.index);
    });
    auto ordered = std::make_shared<Found>();
    ordered->reserve(results.size());
    for (const auto& place : places)
      ordered->push_back(std::move(results[place.index]));
    return ordered;
  }

  static Found foundIn(const Work& work, std::size_t start, std::size_t end) {
    const bool isEachFound = isInert(work.term, work.options);
    const auto matcher = isEachFound ? nullptr : makeTextMatcher(work.term, work.options);
    Found results;
    if (isEachFound) results.reserve(end - start);
    for (std::size_t at = start; at < end; ++at) {
      const auto& item = (*work.items)[at];
      if (isEachFound) {
        results.push_back({item, 0.0, std::nullopt});
      } else if (const auto match = matcher->find(item->text().view)) {
        results.push_back({item, 0.0, match});
      } else if (work.options.includesAppName && isAppNameFound(*item, *matcher)) {
        results.push_back({item, 1.0, std::nullopt});
      }
    }
    return results;
  }

  static bool isAppNameFound(const T& item, TextMatcher& matcher) {
    const auto name = item.appName();
    return name && matcher.find(*name);
  }

  foundation::BackgroundQueue& m_queue;
  foundation::RunLoop& m_runLoop;
  const defaults::Defaults& m_defaults;
  std::shared_ptr<const bool> m_isAlive = std::make_shared<const bool>(true);
};

}  // namespace quillmonger
