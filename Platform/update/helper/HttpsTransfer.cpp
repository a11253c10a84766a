#include "Platform/update/helper/HttpsTransfer.h"

#include <curl/curl.h>
#include <poll.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <memory>

namespace platform {

namespace {

struct End {
  void operator()(CURL* handle) const { curl_easy_cleanup(handle); }
};

std::size_t take(char* bytes, std::size_t size, std::size_t count, void* data) {
  const std::string_view part(bytes, size * count);
  return (*static_cast<const HttpsTransfer::Sink*>(data))(part) ? part.size() : CURL_WRITEFUNC_ERROR;
}

// Called at least once a second, also while nothing comes. Whoever reads the output may be gone.
int endWithReader(void* /*data*/, curl_off_t, curl_off_t, curl_off_t, curl_off_t) {
  pollfd reader{STDOUT_FILENO, 0, 0};
  return poll(&reader, 1, 0) == 1 && (reader.revents & (POLLERR | POLLHUP)) != 0 ? 1 : 0;
}

// Whether the library keeps to all of it: one that knows no such option would take any protocol.
bool setSecurity(CURL* handle) {
  constexpr long redirectionLimit = 5;
  const bool isSet = curl_easy_setopt(handle, CURLOPT_PROTOCOLS_STR, "https") == CURLE_OK &&
                     curl_easy_setopt(handle, CURLOPT_REDIR_PROTOCOLS_STR, "https") == CURLE_OK &&
                     curl_easy_setopt(handle, CURLOPT_FOLLOWLOCATION, 1L) == CURLE_OK &&
                     curl_easy_setopt(handle, CURLOPT_MAXREDIRS, redirectionLimit) == CURLE_OK &&
                     curl_easy_setopt(handle, CURLOPT_FAILONERROR, 1L) == CURLE_OK;
  // As other programs do it: certificates of the user's own in place of the system's.
  const char* certificates = std::getenv("SSL_CERT_FILE");
  return isSet && (certificates == nullptr || curl_easy_setopt(handle, CURLOPT_CAINFO, certificates) == CURLE_OK);
}

// A server that sends a byte now and then keeps no transfer alive.
void setPatience(CURL* handle) {
  constexpr long bytesPerSecond = 100;
  constexpr long seconds = 60;
  curl_easy_setopt(handle, CURLOPT_LOW_SPEED_LIMIT, bytesPerSecond);
  curl_easy_setopt(handle, CURLOPT_LOW_SPEED_TIME, seconds);
}

}  // namespace

HttpsTransfer::HttpsTransfer() { curl_global_init(CURL_GLOBAL_DEFAULT); }
HttpsTransfer::~HttpsTransfer() { curl_global_cleanup(); }

foundation::Outcome HttpsTransfer::fetch(const std::string& url, const Sink& sink) const {
  const std::unique_ptr<CURL, End> handle(curl_easy_init());
  if (!handle) return foundation::Error{"no memory"};
  std::array<char, CURL_ERROR_SIZE> reason{};
  if (!setSecurity(handle.get())) return foundation::Error{"the network library knows no HTTPS"};
  setPatience(handle.get());
  curl_easy_setopt(handle.get(), CURLOPT_URL, url.c_str());
  curl_easy_setopt(handle.get(), CURLOPT_USERAGENT, "Quillmonger");
  curl_easy_setopt(handle.get(), CURLOPT_NOSIGNAL, 1L);
  curl_easy_setopt(handle.get(), CURLOPT_WRITEFUNCTION, take);
  curl_easy_setopt(handle.get(), CURLOPT_WRITEDATA, &sink);
  curl_easy_setopt(handle.get(), CURLOPT_NOPROGRESS, 0L);
  curl_easy_setopt(handle.get(), CURLOPT_XFERINFOFUNCTION, endWithReader);
  curl_easy_setopt(handle.get(), CURLOPT_ERRORBUFFER, reason.data());
  const CURLcode code = curl_easy_perform(handle.get());
  if (code == CURLE_OK) return foundation::success();
  return foundation::Error{reason[0] != '\0' ? reason.data() : curl_easy_strerror(code)};
}

}  // namespace platform
