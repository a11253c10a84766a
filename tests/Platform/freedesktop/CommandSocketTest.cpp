#include "Platform/freedesktop/CommandSocket.h"

#include <gtest/gtest.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <cstring>
#include <functional>
#include <vector>

#include "tests/support/TemporaryFolder.h"
#include "tests/support/VirtualRunLoop.h"

namespace {

using namespace std::chrono_literals;
using platform::CommandSocket;
using Clock = std::chrono::steady_clock;

/// A caller that does what a proper one doesn't.
class Caller final {
 public:
  explicit Caller(const std::filesystem::path& path) : m_descriptor(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, path.c_str(), path.string().size());
    m_isConnected = connect(m_descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
  }
  Caller(const Caller&) = delete;
  Caller& operator=(const Caller&) = delete;
  ~Caller() { close(m_descriptor); }

  [[nodiscard]] bool isConnected() const { return m_isConnected; }
  void say(std::string_view text) const {
    while (!text.empty()) {
      const ssize_t count = send(m_descriptor, text.data(), text.size(), MSG_NOSIGNAL);
      if (count <= 0) return;
      text.remove_prefix(static_cast<std::size_t>(count));
    }
  }
  /// Everything until the other side ends the connection, for five seconds at most; `meanwhile` runs often.
  std::string hear(const std::function<void()>& meanwhile) {
    std::string text;
    std::array<char, 65536> buffer{};
    for (auto deadline = Clock::now() + 5s; Clock::now() < deadline;) {
      meanwhile();
      pollfd event{m_descriptor, POLLIN, 0};
      if (poll(&event, 1, 1) <= 0) continue;
      const ssize_t count = recv(m_descriptor, buffer.data(), buffer.size(), 0);
      if (count <= 0) {
        m_isEnded = true;
        break;
      }
      text.append(buffer.data(), static_cast<std::size_t>(count));
    }
    return text;
  }
  [[nodiscard]] bool isEnded() const { return m_isEnded; }

 private:
  int m_descriptor;
  bool m_isConnected = false;
  bool m_isEnded = false;
};

class CommandSocketTest : public testing::Test {
 protected:
  testsupport::TemporaryFolder folder;
  testsupport::VirtualRunLoop runLoop;
  std::filesystem::path path = folder.path() / "socket";
  std::vector<std::string> requests;
  std::function<void(const std::string&, const CommandSocket::Reply&)> answer =
      [](const auto& request, const auto& reply) { reply("answer to " + request); };
  CommandSocket::Patience patience;
  std::unique_ptr<CommandSocket> socket;

  void listen() {
    socket = CommandSocket::listen(
        path, runLoop,
        [this](const std::string& request, const CommandSocket::Reply& reply) {
          requests.push_back(request);
          answer(request, reply);
        },
        patience);
    ASSERT_NE(socket, nullptr);
  }
  std::function<void()> running() {
    return [this] { runLoop.runPosted(); };
  }
};

TEST_F(CommandSocketTest, AnswersARequestOnTheMainQueue) {
  listen();
  Caller caller(path);

  caller.say("toggle\n");

  EXPECT_EQ(caller.hear(running()), "answer to toggle\n");
  EXPECT_TRUE(caller.isEnded());
  EXPECT_EQ(requests, std::vector<std::string>{"toggle"});
}

TEST_F(CommandSocketTest, TakesARequestThatComesInPieces) {
  listen();
  Caller caller(path);

  caller.say("to");
  runLoop.runPosted();
  caller.say("ggle\n");

  EXPECT_EQ(caller.hear(running()), "answer to toggle\n");
}

TEST_F(CommandSocketTest, ServesOthersWhileACallerIsSilent) {
  listen();
  const Caller silent(path);
  Caller caller(path);

  caller.say("toggle\n");

  EXPECT_EQ(caller.hear(running()), "answer to toggle\n");
}

TEST_F(CommandSocketTest, CutsASilentCallerOff) {
  patience.transfer = 30ms;
  listen();
  Caller silent(path);

  EXPECT_EQ(silent.hear(running()), "");
  EXPECT_TRUE(silent.isEnded());
}

TEST_F(CommandSocketTest, CutsACallerOffThatTheProgramNeverAnswers) {
  patience.answer = 30ms;
  answer = [](const auto&, const auto&) {};
  listen();
  Caller caller(path);

  caller.say("toggle\n");

  EXPECT_EQ(caller.hear(running()), "");
  EXPECT_TRUE(caller.isEnded());
}

TEST_F(CommandSocketTest, CutsACallerOffThatDoesNotReadItsAnswer) {
  patience.transfer = 30ms;
  answer = [](const auto&, const auto& reply) { reply(std::string(8U << 20U, 'a')); };
  listen();
  Caller caller(path);
  caller.say("list\n");
  for (const auto deadline = Clock::now() + 5s; requests.empty() && Clock::now() < deadline;)
    runLoop.runPosted();

  Caller other(path);
  other.say("list\n");

  EXPECT_EQ(other.hear(running()).size(), (8U << 20U) + 1U);
}

TEST_F(CommandSocketTest, RefusesARequestOverTheLimit) {
  listen();
  Caller caller(path);

  caller.say(std::string(CommandSocket::requestLimit + 2, 'a') + "\n");

  EXPECT_EQ(caller.hear(running()), "");
  EXPECT_TRUE(caller.isEnded());
  EXPECT_TRUE(requests.empty());
}

TEST_F(CommandSocketTest, DropsARequestWithoutAnEnd) {
  listen();
  { const Caller caller(path); }
  Caller other(path);

  other.say("toggle\n");

  EXPECT_EQ(other.hear(running()), "answer to toggle\n");
  EXPECT_EQ(requests.size(), 1U);
}

TEST_F(CommandSocketTest, ServesMoreCallersThanItServesAtOnce) {
  listen();
  std::vector<std::unique_ptr<Caller>> callers;
  for (std::size_t count = 0; count < CommandSocket::clientLimit + 4; ++count) {
    callers.push_back(std::make_unique<Caller>(path));
    ASSERT_TRUE(callers.back()->isConnected());
  }

  for (const auto& caller : callers) {
    caller->say("x\n");
    EXPECT_EQ(caller->hear(running()), "answer to x\n");
  }
}

TEST_F(CommandSocketTest, AReplyAfterItsEndIsHarmless) {
  CommandSocket::Reply kept;
  answer = [&kept](const auto&, const auto& reply) { kept = reply; };
  listen();
  Caller caller(path);
  caller.say("quit\n");
  for (const auto deadline = Clock::now() + 5s; !kept && Clock::now() < deadline;)
    runLoop.runPosted();
  ASSERT_TRUE(kept);

  socket.reset();
  kept("too late");

  EXPECT_EQ(caller.hear(running()), "");
}

// Over and over, since it was a race between two threads.
TEST_F(CommandSocketTest, AnswersTheRequestThatEndsIt) {
  for (int i = 0; i < 300; ++i) {
    listen();
    Caller caller(path);
    caller.say("quit\n");

    const auto heard = caller.hear([this] {
      const auto before = requests.size();
      runLoop.runPosted();
      if (requests.size() > before) socket.reset();
    });

    ASSERT_EQ(heard, "answer to quit\n");
  }
}

TEST_F(CommandSocketTest, TakesThePlaceOfASocketThatACrashLeft) {
  listen();
  const auto left = folder.path() / "left";
  std::filesystem::create_hard_link(path, left);
  socket.reset();
  std::filesystem::rename(left, path);

  listen();
  Caller caller(path);
  caller.say("toggle\n");

  EXPECT_EQ(caller.hear(running()), "answer to toggle\n");
}

TEST_F(CommandSocketTest, IsGoneAfterItsEnd) {
  listen();
  socket.reset();

  EXPECT_FALSE(std::filesystem::exists(path));
}

TEST_F(CommandSocketTest, DoesNotListenAtAPathThatIsTooLong) {
  EXPECT_EQ(CommandSocket::listen(folder.path() / std::string(200, 'a'), runLoop, [](auto, auto) {}), nullptr);
}

TEST_F(CommandSocketTest, PermitsItsOwnUserAlone) {
  EXPECT_TRUE(CommandSocket::isPermitted(1000, 1000));
  EXPECT_FALSE(CommandSocket::isPermitted(1001, 1000));
  EXPECT_FALSE(CommandSocket::isPermitted(0, 1000));
}

}  // namespace
