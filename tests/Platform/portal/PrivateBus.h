#pragma once

#include <QDBusConnection>
#include <QString>

#include "tests/support/ChildProcess.h"
#include "tests/support/TemporaryFolder.h"

namespace testsupport {

/// A bus of the test's own, which ends with it. It starts no services.
class PrivateBus final {
 public:
  PrivateBus();

  /// A connection to it; the same one for the same name.
  [[nodiscard]] QDBusConnection connection(const QString& name) const;

 private:
  TemporaryFolder m_folder;
  ChildProcess m_daemon;
  QString m_address;
};

}  // namespace testsupport
