#include "tests/Platform/sound/PrivateSoundServer.h"

#include <signal.h>
#include <unistd.h>

#include <QTest>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <stdexcept>

namespace testsupport {

namespace {

// Everything that the server keeps goes into the folder, whoever runs the test. It stays off the session bus, where a
// second server ends because the first has its name.
std::vector<std::string> ownEnvironment(const std::string& folder) {
  return {"HOME=" + folder, "XDG_RUNTIME_DIR=" + folder, "XDG_CONFIG_HOME=" + folder, "PULSE_RUNTIME_PATH=" + folder,
          "DBUS_SESSION_BUS_ADDRESS=disabled:"};
}

}  // namespace

PrivateSoundServer::PrivateSoundServer() {
  const std::string folder = m_folder.path();
  const std::string address = folder + "/socket";
  m_server = std::make_unique<ChildProcess>(
      std::vector<std::string>{"pulseaudio", "--daemonize=no", "--disallow-exit", "--exit-idle-time=-1", "-n",
                               "--use-pid-file=no", "--log-target=null", "--disable-shm=yes",
                               "-L module-null-sink sink_name=nowhere rate=44100 channels=1",
                               "-L module-native-protocol-unix auth-anonymous=1 socket=" + address},
      ownEnvironment(folder));
  setenv("PULSE_SERVER", ("unix:" + address).c_str(), 1);
  if (!QTest::qWaitFor([&address] { return access(address.c_str(), F_OK) == 0; }, 10000)) {
    throw std::runtime_error("the sound server does not start");
  }
}

PrivateSoundServer::~PrivateSoundServer() { unsetenv("PULSE_SERVER"); }

void PrivateSoundServer::startListening() {
  m_listener = std::make_unique<ChildProcess>(std::vector<std::string>{
      "parec", "--device=nowhere.monitor", "--format=s16le", "--rate=44100", "--channels=1", "--latency-msec=10"});
  if (!QTest::qWaitFor([this] { return !heard().empty(); }, 10000)) {
    throw std::runtime_error("the sound server can't be heard");
  }
}

std::vector<std::int16_t> PrivateSoundServer::heard() const {
  const std::string bytes = m_listener->output();
  std::vector<std::int16_t> samples(bytes.size() / sizeof(std::int16_t));
  if (!samples.empty()) std::memcpy(samples.data(), bytes.data(), samples.size() * sizeof(std::int16_t));
  return samples;
}

bool PrivateSoundServer::hasStream() const {
  ChildProcess query({"pactl", "list", "short", "sink-inputs"});
  static_cast<void>(QTest::qWaitFor([&query] { return query.isFinished(); }));
  return !query.output().empty();
}

void PrivateSoundServer::hang() { m_server->signal(SIGSTOP); }

}  // namespace testsupport
