#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "Foundation/Result.h"

namespace platform {

/// Fetches what lies at a URL by HTTPS, also after redirections, and by nothing else. Blocks. Main thread.
class HttpsTransfer final {
 public:
  /// Takes the next bytes; false ends the transfer.
  using Sink = std::function<bool(std::string_view bytes)>;

  HttpsTransfer();
  HttpsTransfer(const HttpsTransfer&) = delete;
  HttpsTransfer& operator=(const HttpsTransfer&) = delete;
  ~HttpsTransfer();

  /// An error when the server can't be reached or trusted, fails, or ends too early, and when `sink` ended it or
  /// whoever started this program is gone.
  [[nodiscard]] foundation::Outcome fetch(const std::string& url, const Sink& sink) const;
};

}  // namespace platform
