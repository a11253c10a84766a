#include "Platform/freedesktop/SystemLog.h"

#include <syslog.h>

namespace platform {

void logError(const std::string& logger, const std::string& message) {
  syslog(LOG_USER | LOG_ERR, "%s: %s", logger.c_str(), message.c_str());
}

}  // namespace platform
