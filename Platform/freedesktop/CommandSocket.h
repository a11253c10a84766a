#pragma once

#include <sys/types.h>

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <thread>

#include "Foundation/RunLoop.h"

namespace platform {

/// Where this user's other processes hand in requests: one line in, a text and a line end out, then
/// the connection ends. Has a thread of
/// its own that sleeps while nobody calls. A caller that is slow, silent or another user is cut off, and holds up no
/// other.
class CommandSocket final {
 public:
  /// In bytes.
  static constexpr std::size_t requestLimit = std::size_t{12} << 20U;
  static constexpr std::size_t clientLimit = 16;

  using Reply = std::function<void(std::string)>;
  /// Called on the main thread with the line, without its end. `reply`: once, from any thread, at any later time, even
  /// when this object is gone.
  using Handler = std::function<void(std::string request, Reply reply)>;

  /// How long a caller may take for its request, the program for its answer, and the caller to read it.
  struct Patience {
    std::chrono::milliseconds transfer{2000};
    std::chrono::milliseconds answer{10000};
  };

  /// Takes the place of a socket that is left at `path`: only for the holder of the `SingleInstance` claim. Null, with
  /// one line on standard output, when it can't listen there. `runLoop` must outlive this object.
  [[nodiscard]] static std::unique_ptr<CommandSocket> listen(const std::filesystem::path& path,
                                                             foundation::RunLoop& runLoop, Handler handler,
                                                             Patience patience);
  [[nodiscard]] static std::unique_ptr<CommandSocket> listen(const std::filesystem::path& path,
                                                             foundation::RunLoop& runLoop, Handler handler) {
    return listen(path, runLoop, std::move(handler), Patience());
  }

  CommandSocket(const CommandSocket&) = delete;
  CommandSocket& operator=(const CommandSocket&) = delete;
  /// Main thread. Removes the socket; ends every connection.
  ~CommandSocket();

  /// Whether a process of `peer` may give commands to one of `own`.
  [[nodiscard]] static bool isPermitted(uid_t peer, uid_t own) { return peer == own; }

 private:
  class Server;
  CommandSocket(std::filesystem::path path, std::shared_ptr<Server> server);

  std::filesystem::path m_path;
  std::shared_ptr<Server> m_server;
  std::thread m_thread;
};

}  // namespace platform
