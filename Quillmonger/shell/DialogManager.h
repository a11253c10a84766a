#pragma once

#include <functional>
#include <string>

#include "Foundation/TextLookup.h"
#include "Foundation/Url.h"
#include "Quillmonger/capture/StoreFailureDialog.h"
#include "Quillmonger/shell/Alert.h"

namespace quillmonger {

/// Opens a URL with whatever the user opens such URLs with.
using UrlOpener = std::function<void(const foundation::Url& url)>;

/// Shows the alert for the failure that the program can't live with. Main thread.
class DialogManager final : public StoreFailureDialog {
 public:
  DialogManager(Alert& alert, foundation::TextLookup texts, UrlOpener openUrl, std::string supportAddress);

  /// Returns when the user has answered.
  void showGenericErrorAlert() override;

 private:
  void writeToSupport();

  Alert& m_alert;
  foundation::TextLookup m_texts;
  UrlOpener m_openUrl;
  std::string m_supportAddress;
};

}  // namespace quillmonger
