#include "Foundation/NotificationCenter.h"

#include <utility>

namespace foundation {

void NotificationCenter::post(std::string_view name, const void* object, std::map<std::string, std::string> userInfo) {
  const auto found = m_streams.find(name);
  if (found != m_streams.end()) found->second.send({std::string(name), object, std::move(userInfo)});
}

Subscription NotificationCenter::observe(std::string_view name, Observer observer) {
  return m_streams[std::string(name)].subscribe(std::move(observer));
}

}  // namespace foundation
