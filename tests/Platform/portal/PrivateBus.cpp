#include "tests/Platform/portal/PrivateBus.h"

#include <QTest>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

namespace testsupport {

namespace {

// The desktop's own configuration would have the bus start the user's portal.
std::string configuration(const std::filesystem::path& folder) {
  const auto file = folder / "bus.conf";
  std::ofstream(file)
      << "<busconfig><listen>unix:dir=" << folder.string() << "</listen><policy context=\"default\">"
      << "<allow send_destination=\"*\"/><allow eavesdrop=\"true\"/><allow own=\"*\"/></policy></busconfig>";
  return "--config-file=" + file.string();
}

}  // namespace

PrivateBus::PrivateBus()
    : m_daemon({"dbus-daemon", configuration(m_folder.path()), "--nofork", "--nopidfile", "--print-address"}) {
  const auto hasAddress = [this] { return m_daemon.output().find('\n') != std::string::npos; };
  if (!QTest::qWaitFor(hasAddress)) throw std::runtime_error("no bus came up");
  m_address = QString::fromStdString(m_daemon.output()).trimmed();
}

QDBusConnection PrivateBus::connection(const QString& name) const {
  return QDBusConnection::connectToBus(m_address, m_address + name);
}

}  // namespace testsupport
