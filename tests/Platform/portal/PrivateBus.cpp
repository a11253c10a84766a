#include "tests/Platform/portal/PrivateBus.h"

#include <QTest>
#include <stdexcept>

namespace testsupport {

PrivateBus::PrivateBus() : m_daemon({"dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address"}) {
  const auto hasAddress = [this] { return m_daemon.output().find('\n') != std::string::npos; };
  if (!QTest::qWaitFor(hasAddress)) throw std::runtime_error("no bus came up");
  m_address = QString::fromStdString(m_daemon.output()).trimmed();
}

QDBusConnection PrivateBus::connection(const QString& name) const {
  return QDBusConnection::connectToBus(m_address, m_address + name);
}

}  // namespace testsupport
