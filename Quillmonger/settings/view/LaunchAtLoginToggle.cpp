#include "Quillmonger/settings/view/LaunchAtLoginToggle.h"

#include "Quillmonger/resources/Texts.h"

namespace quillmonger {

LaunchAtLoginToggle::LaunchAtLoginToggle(const char* textKey, launchatlogin::LaunchAtLogin& launchAtLogin)
    : m_toggle(launchAtLogin.observable(), textKey) {}

QString LaunchAtLoginToggle::label() const { return QString::fromStdString(localizedText(m_toggle.label())); }

void LaunchAtLoginToggle::flip() {
  m_toggle.flip();
  refresh();
}

}  // namespace quillmonger
