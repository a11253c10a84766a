#include "Quillmonger/shell/app/PreviewFeed.h"

#include "Quillmonger/resources/Texts.h"

namespace quillmonger {

namespace {

void tellFailedCopy(Alert& alert) {
  static_cast<void>(alert.runModal({localizedText("error_alert_title"),
                                    localizedText("preview_oculet_action_error"),
                                    {localizedText("confirm_string")}}));
}

}  // namespace

PreviewFeed::PreviewFeed(Quillmonger& root, const Services& services)
    : m_viewModel({root.clipboardViewModel().selectedItem(), root.windowManager().previewVisibility().isVisible(),
                   services.defaults, root.oculetManager(), localizedText, services.backgroundQueue, services.runLoop}),
      m_copying({[&root](const foundation::Data& text) { root.clipboardManager().writeToPasteboard(text); },
                 [&alert = services.alert] { tellFailedCopy(alert); }, services.backgroundQueue, services.runLoop}),
      m_buttons({m_viewModel, m_copying, services.eventMonitoring, services.runLoop}),
      m_model({m_viewModel, m_copying, m_buttons, root.clipboardViewModel().isOptionPressed(), services.defaults,
               services.backgroundQueue, services.runLoop,
               [&root] { root.windowManager().showSettingsWindow(WindowManager::SettingsPane::appearance); }}),
      m_opening({root.clipboardViewModel().selectedItem(), services.notificationCenter, services.defaults,
                 services.inspection, [&root] { return root.windowManager().isAppWindowVisible(); },
                 [&root] { root.windowManager().showPreviewWindow(); }}) {}

}  // namespace quillmonger
