#include "Quillmonger/shell/client/Connection.h"

#include <errno.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <cstring>
#include <utility>

#include "Quillmonger/shell/command/CommandMessage.h"

namespace quillmonger {

namespace {

using Clock = std::chrono::steady_clock;

bool waitFor(int descriptor, short events, Clock::time_point deadline) {
  for (;;) {
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now()).count();
    if (left <= 0) return false;
    pollfd event{descriptor, events, 0};
    const int count = poll(&event, 1, static_cast<int>(left));
    if (count > 0) return true;
    if (count == 0 || errno != EINTR) return false;
  }
}

bool sendAll(int descriptor, std::string_view text, Clock::time_point deadline) {
  while (!text.empty()) {
    if (!waitFor(descriptor, POLLOUT, deadline)) return false;
    const ssize_t count = send(descriptor, text.data(), text.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
    if (count < 0 && errno != EAGAIN && errno != EINTR) return false;
    if (count > 0) text.remove_prefix(static_cast<std::size_t>(count));
  }
  return true;
}

}  // namespace

std::optional<Connection> Connection::open(const std::filesystem::path& path) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  if (path.string().size() >= sizeof address.sun_path) return std::nullopt;
  std::memcpy(address.sun_path, path.c_str(), path.string().size());
  Connection connection(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
  const auto* generic = reinterpret_cast<const sockaddr*>(&address);
  if (connection.m_descriptor < 0 || connect(connection.m_descriptor, generic, sizeof address) != 0) {
    return std::nullopt;
  }
  return connection;
}

Connection::Connection(Connection&& other) noexcept : m_descriptor(std::exchange(other.m_descriptor, -1)) {}

Connection::~Connection() {
  if (m_descriptor >= 0) close(m_descriptor);
}

std::optional<std::string> Connection::request(std::string line, std::chrono::milliseconds patience) {
  const auto deadline = Clock::now() + patience;
  line += '\n';
  if (!sendAll(m_descriptor, line, deadline)) return std::nullopt;
  std::string reply;
  std::array<char, 65536> buffer{};
  while (reply.size() <= commandmessage::resultLimit && waitFor(m_descriptor, POLLIN, deadline)) {
    const ssize_t count = recv(m_descriptor, buffer.data(), buffer.size(), MSG_DONTWAIT);
    if (count < 0 && (errno == EAGAIN || errno == EINTR)) continue;
    if (count < 0 || (count == 0 && !reply.ends_with('\n'))) break;
    if (count == 0) {
      reply.pop_back();
      return reply;
    }
    reply.append(buffer.data(), static_cast<std::size_t>(count));
  }
  return std::nullopt;
}

}  // namespace quillmonger
