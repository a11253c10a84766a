#include "Quillmonger/shell/DialogManager.h"

#include <utility>

namespace quillmonger {

namespace {

// The one code there is: the alert says nothing about the cause.
constexpr auto errorCode = " ERR-001";

}  // namespace

DialogManager::DialogManager(Alert& alert, foundation::TextLookup texts, UrlOpener openUrl, std::string supportAddress)
    : m_alert(alert),
      m_texts(std::move(texts)),
      m_openUrl(std::move(openUrl)),
      m_supportAddress(std::move(supportAddress)) {}

void DialogManager::showGenericErrorAlert() {
  const int answer =
      m_alert.runModal({.message = m_texts("error_alert_title"),
                        .informativeText = m_texts("error_alert_message") + errorCode,
                        .buttons = {m_texts("error_alert_email_support_button"), m_texts("cancel_string")}});
  if (answer == Alert::firstButton) writeToSupport();
}

void DialogManager::writeToSupport() {
  const auto subject = foundation::addingPercentEscapes(m_texts("error_alert_email_subject") + errorCode);
  const auto url = foundation::Url::parse("mailto:" + m_supportAddress + "?subject=" + subject);
  if (url) m_openUrl(*url);
}

}  // namespace quillmonger
