#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>

#include "Foundation/Stream.h"

namespace foundation {

/// One event, told by name between parts of the program that do not know each other.
struct Notification {
  std::string name;
  /// Who it is about, only to be compared; null when it is about nobody in particular.
  const void* object = nullptr;
  /// What else there is to say, under names of the poster's own.
  std::map<std::string, std::string> userInfo{};
};

/// Hands each posted notification to the observers of its name, before `post` returns. Main thread only.
class NotificationCenter final {
 public:
  using Observer = std::function<void(const Notification&)>;

  void post(std::string_view name, const void* object = nullptr, std::map<std::string, std::string> userInfo = {});
  Subscription observe(std::string_view name, Observer observer);

 private:
  std::map<std::string, Stream<Notification>, std::less<>> m_streams;
};

}  // namespace foundation
