#include "Quillmonger/shell/OutsideOpening.h"

namespace quillmonger {

void OutsideOpening::open(const foundation::Url& url) {
  open(url, [this, address = url.absoluteString()] { tellFailure(address); });
}

void OutsideOpening::open(const foundation::Url& url, const Failed& failed) {
  const auto failedEarly = [this, failed, start = m_with.runLoop.date()] {
    if (m_with.runLoop.date() - start < giveUpTime) failed();
  };
  // In a later turn either way: whoever asks may be in the middle of a click.
  if (!m_with.open(url, failedEarly)) m_with.runLoop.post(failed);
}

void OutsideOpening::tellFailure(const std::string& address) {
  const int answer =
      m_with.alert.runModal({.message = m_with.texts("open_failed_title"),
                             .informativeText = m_with.texts("open_failed_message") + "\n" + address,
                             .buttons = {m_with.texts("open_failed_copy_button"), m_with.texts("confirm_string")}});
  if (answer == Alert::firstButton) m_with.copy(address);
}

}  // namespace quillmonger
