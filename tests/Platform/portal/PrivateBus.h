#pragma once

#include <QDBusConnection>
#include <QString>

#include "tests/support/ChildProcess.h"

namespace testsupport {

/// A session bus of the test's own, which ends with it.
class PrivateBus final {
 public:
  PrivateBus();

  /// A connection to it; the same one for the same name.
  [[nodiscard]] QDBusConnection connection(const QString& name) const;

 private:
  ChildProcess m_daemon;
  QString m_address;
};

}  // namespace testsupport
