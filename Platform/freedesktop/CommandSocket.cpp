#include "Platform/freedesktop/CommandSocket.h"

#include <errno.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdint>
#include <cstring>
#include <mutex>
#include <optional>
#include <system_error>
#include <utility>
#include <vector>

#include "Foundation/Output.h"

namespace platform {

namespace {

using Clock = std::chrono::steady_clock;

bool isOwnUser(int client) {
  ucred peer{};
  socklen_t length = sizeof peer;
  return getsockopt(client, SOL_SOCKET, SO_PEERCRED, &peer, &length) == 0 &&
         CommandSocket::isPermitted(peer.uid, geteuid());
}

std::optional<sockaddr_un> addressOf(const std::filesystem::path& path) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  if (path.string().size() >= sizeof address.sun_path) return std::nullopt;
  std::memcpy(address.sun_path, path.c_str(), path.string().size());
  return address;
}

int listeningSocket(const std::filesystem::path& path) {
  const auto address = addressOf(path);
  if (!address.has_value()) return -1;
  const int listener = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
  if (listener < 0) return -1;
  unlink(path.c_str());
  const auto* generic = reinterpret_cast<const sockaddr*>(&*address);
  if (bind(listener, generic, sizeof *address) == 0 && ::listen(listener, 16) == 0) return listener;
  close(listener);
  return -1;
}

}  // namespace

class CommandSocket::Server final : public std::enable_shared_from_this<Server> {
 public:
  Server(int listener, int wake, foundation::RunLoop& runLoop, Handler handler, Patience patience)
      : m_listener(listener), m_wake(wake), m_runLoop(runLoop), m_handler(std::move(handler)), m_patience(patience) {}
  Server(const Server&) = delete;
  Server& operator=(const Server&) = delete;
  ~Server() {
    close(m_listener);
    close(m_wake);
  }

  void run() {
    while (!m_isStopped) {
      waitForEvents();
      exchange();
      acceptClients();
      const auto now = Clock::now();
      std::erase_if(m_clients, [now](const Client& client) {
        const bool isOver = client.phase == Phase::over || client.deadline <= now;
        if (isOver) close(client.descriptor);
        return isOver;
      });
    }
    // The answer to the request that ended the program may have come since.
    exchange();
    for (const auto& client : m_clients)
      close(client.descriptor);
  }

  void stop() {
    m_isStopped = true;
    wake();
  }

  // Main thread, where `stop` comes from too: so no request is handed on once the socket is gone.
  void handle(std::uint64_t number, std::string request) {
    if (m_isStopped) return;
    m_handler(std::move(request), [server = weak_from_this(), number](std::string text) {
      if (const auto present = server.lock()) present->reply(number, std::move(text));
    });
  }

 private:
  enum class Phase : std::uint8_t { reading, waiting, writing, over };
  struct Client {
    int descriptor;
    std::uint64_t number;
    Phase phase;
    std::string text;
    std::size_t written;
    Clock::time_point deadline;
  };

  void wake() const {
    const std::uint64_t one = 1;
    [[maybe_unused]] const ssize_t written = ::write(m_wake, &one, sizeof one);
  }

  void reply(std::uint64_t number, std::string text) {
    text += '\n';
    {
      const std::lock_guard lock(m_mutex);
      m_replies.emplace_back(number, std::move(text));
    }
    wake();
  }

  void waitForEvents() {
    std::vector<pollfd> events{{m_wake, POLLIN, 0}};
    // Beyond the limit, callers wait in the system's queue.
    if (m_clients.size() < clientLimit) events.push_back({m_listener, POLLIN, 0});
    int timeout = -1;
    const auto now = Clock::now();
    for (const auto& client : m_clients) {
      const auto left = std::chrono::ceil<std::chrono::milliseconds>(client.deadline - now).count();
      const int wait = static_cast<int>(std::max<std::int64_t>(left, 0));
      timeout = timeout < 0 ? wait : std::min(timeout, wait);
      if (client.phase == Phase::reading) events.push_back({client.descriptor, POLLIN, 0});
      if (client.phase == Phase::writing) events.push_back({client.descriptor, POLLOUT, 0});
    }
    poll(events.data(), events.size(), timeout);
    std::uint64_t count = 0;
    if ((events.front().revents & POLLIN) != 0 && ::read(m_wake, &count, sizeof count) < 0) m_isStopped = true;
  }

  void exchange() {
    takeReplies();
    for (auto& client : m_clients)
      serve(client);
  }

  void acceptClients() {
    while (m_clients.size() < clientLimit) {
      const int descriptor = accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
      if (descriptor < 0) return;
      if (isOwnUser(descriptor)) {
        m_clients.push_back({descriptor, m_nextNumber++, Phase::reading, {}, 0, Clock::now() + m_patience.transfer});
      } else {
        close(descriptor);
      }
    }
  }

  void takeReplies() {
    std::vector<std::pair<std::uint64_t, std::string>> replies;
    {
      const std::lock_guard lock(m_mutex);
      replies.swap(m_replies);
    }
    for (auto& [number, text] : replies) {
      const auto client = std::ranges::find(m_clients, number, &Client::number);
      if (client == m_clients.end() || client->phase != Phase::waiting) continue;
      client->phase = Phase::writing;
      client->text = std::move(text);
      client->deadline = Clock::now() + m_patience.transfer;
    }
  }

  void serve(Client& client) {
    if (client.phase == Phase::reading) readFrom(client);
    if (client.phase == Phase::writing) writeTo(client);
  }

  void readFrom(Client& client) {
    std::array<char, 16384> buffer{};
    const ssize_t count = recv(client.descriptor, buffer.data(), buffer.size(), 0);
    if (count < 0 && (errno == EAGAIN || errno == EINTR)) return;
    const auto start = client.text.size();
    if (count > 0) client.text.append(buffer.data(), static_cast<std::size_t>(count));
    const auto end = client.text.find('\n', start);
    if (end != std::string::npos && end <= requestLimit) {
      client.phase = Phase::waiting;
      client.deadline = Clock::now() + m_patience.answer;
      m_runLoop.post([server = weak_from_this(), number = client.number, request = client.text.substr(0, end)] {
        if (const auto present = server.lock()) present->handle(number, request);
      });
    } else if (count <= 0 || client.text.size() > requestLimit) {
      client.phase = Phase::over;
    }
  }

  void writeTo(Client& client) {
    const auto rest = std::string_view(client.text).substr(client.written);
    const ssize_t count = send(client.descriptor, rest.data(), rest.size(), MSG_NOSIGNAL);
    if (count < 0 && (errno == EAGAIN || errno == EINTR)) return;
    if (count < 0) client.phase = Phase::over;
    client.written += static_cast<std::size_t>(std::max<ssize_t>(count, 0));
    if (count > 0) client.deadline = Clock::now() + m_patience.transfer;
    if (client.written == client.text.size()) client.phase = Phase::over;
  }

  int m_listener;
  int m_wake;
  foundation::RunLoop& m_runLoop;
  Handler m_handler;
  Patience m_patience;
  std::atomic<bool> m_isStopped = false;
  std::mutex m_mutex;
  std::vector<std::pair<std::uint64_t, std::string>> m_replies;
  std::vector<Client> m_clients;
  std::uint64_t m_nextNumber = 0;
};

std::unique_ptr<CommandSocket> CommandSocket::listen(const std::filesystem::path& path, foundation::RunLoop& runLoop,
                                                     Handler handler, Patience patience) {
  const int listener = listeningSocket(path);
  if (listener < 0) {
    foundation::printLine("CommandSocket: can't listen at ", path.string());
    return nullptr;
  }
  const int wake = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
  auto server = std::make_shared<Server>(listener, wake, runLoop, std::move(handler), patience);
  return std::unique_ptr<CommandSocket>(new CommandSocket(path, std::move(server)));
}

CommandSocket::CommandSocket(std::filesystem::path path, std::shared_ptr<Server> server)
    : m_path(std::move(path)), m_server(std::move(server)), m_thread([present = m_server] { present->run(); }) {}

CommandSocket::~CommandSocket() {
  m_server->stop();
  m_thread.join();
  unlink(m_path.c_str());
}

}  // namespace platform
