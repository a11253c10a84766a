#include "Quillmonger/settings/view/LaunchAtLoginToggle.h"

#include "Quillmonger/resources/Texts.h"

namespace quillmonger {

LaunchAtLoginToggle::LaunchAtLoginToggle(const char* textKey, launchatlogin::LaunchAtLogin& launchAtLogin)
    : m_toggle(launchAtLogin.observable(), textKey),
      // Told ahead of the write: what it left is read in a later turn.
      m_changes(m_toggle.launchAtLogin().objectWillChange().subscribe([this](const auto&) {
        QMetaObject::invokeMethod(this, &LaunchAtLoginToggle::refresh, Qt::QueuedConnection);
      })) {}

QString LaunchAtLoginToggle::label() const { return QString::fromStdString(localizedText(m_toggle.label())); }

}  // namespace quillmonger
