#include "Quillmonger/settings/view/AppearanceSettings.h"

#include "Quillmonger/settings/SettingsKeys.h"

namespace quillmonger {

AppearanceSettings::AppearanceSettings(defaults::Defaults& defaults)
    : m_colorScheme(defaults, keys::selectedColorScheme,
                    {{std::nullopt, "settings_appearance_color_scheme_system"},
                     {ColorScheme::light, "settings_appearance_color_scheme_light"},
                     {ColorScheme::dark, "settings_appearance_color_scheme_dark"}}),
      m_animateMenuBar("status_bar_animate_on_copy_toggle", defaults, keys::animateMenuBar),
      m_sourceAppIcon("settings_display_source_app_icon_description", defaults, keys::showSourceAppIcon),
      m_keyboardShortcuts("settings_display_keyboard_shortcuts_description", defaults, keys::showKeyboardShortcuts),
      m_scrollbar("settings_display_scrollbar_description", defaults, keys::showScrollbar),
      m_colorIndicator("settings_display_color_indicator_toggle", defaults, keys::showColorIndicator),
      m_contentTypeIndicators("settings_display_content_type_indicators", defaults, keys::showContentTypeIndicators),
      m_truncationMode(defaults, keys::truncationMode,
                       {{TruncationMode::head, "settings_clipboard_truncation_mode_head"},
                        {TruncationMode::middle, "settings_clipboard_truncation_mode_middle"},
                        {TruncationMode::tail, "settings_clipboard_truncation_mode_tail"}}),
      m_hideLongText("preview_hide_large_text_title", defaults, keys::hideLongTextPreview),
      m_previewScrollbar("settings_preview_display_scrollbar_toggle", defaults, keys::showPreviewPaneScrollbar),
      m_autoOpenImage("settings_auto_expand_image_preview", defaults, keys::autoOpenImagePreview),
      m_autoOpenOculet("settings_auto_expand_oculet_preview", defaults, keys::autoOpenOculet) {}

}  // namespace quillmonger
