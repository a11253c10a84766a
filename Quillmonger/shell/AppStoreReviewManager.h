#pragma once

#include <utility>

#include "Foundation/Url.h"

namespace quillmonger {

/// Holds the way to the page where users review the program. Nothing opens it by itself. Main thread.
class AppStoreReviewManager final {
 public:
  explicit AppStoreReviewManager(foundation::Url appStoreDeepLink) : m_appStoreDeepLink(std::move(appStoreDeepLink)) {}

  /// The store's page for writing a review of this program, with the query "action=write-review".
  [[nodiscard]] const foundation::Url& appStoreDeepLink() const { return m_appStoreDeepLink; }

 private:
  foundation::Url m_appStoreDeepLink;
};

}  // namespace quillmonger
