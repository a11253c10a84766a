#pragma once

#include <cstdlib>
#include <memory>

namespace platform {

struct X11ReplyDeleter {
  void operator()(void* reply) const { std::free(reply); }
};

/// What the server sent, owned; null when it refused or is gone.
template <typename T>
using X11Reply = std::unique_ptr<T, X11ReplyDeleter>;

}  // namespace platform
