#include "Quillmonger/resources/Texts.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>

namespace quillmonger {

namespace {

struct Entry {
  std::string_view key;
  const char* text;
  const char* comment;
};

constexpr auto entries = std::to_array<Entry>({
    {"%lld lines", "{0, plural, one {# line} other {# lines}}", "How many lines a text has, as an ICU message."},
    {"Pasted %lld times", "{0, plural, one {Pasted # time} other {Pasted # times}}",
     "How often an item was pasted, as an ICU message."},
    {"about_acknowledgements_button", "Acknowledgements", "About: opens the list of the libraries in use."},
    {"about_licence", "Free software under the GNU General Public License, version 3",
     "About: the second line of rights."},
    {"about_privacy_button", "Privacy", "About: opens the page on privacy."},
    {"about_rights", "\u00A9 2026 The Quillmonger authors", "About: the first line of rights."},
    {"about_title", "About Quillmonger", "Title of the window that says what this program is."},
    {"about_version", "Version %1", "About: %1 is the version."},
    {"about_website_button", "Website", "About: opens the program's home page."},
    {"accessibility_app_icon", "Copied from %1", "Read aloud for the source application's icon; %1 is its name."},
    {"accessibility_color", "Colour %1", "Read aloud for the sample of a colour that a text names; %1 is #RRGGBB."},
    {"accessibility_description_1",
     "To paste, Quillmonger presses the paste keys for you. Some desktops, those on Wayland among them, ask for your "
     "permission first; others need none.",
     "Guide, last screen: what the permission is for."},
    {"accessibility_description_2",
     "The check mark shows that all is ready. Without the permission a chosen copy still goes on the clipboard, and "
     "you paste it yourself.",
     "Guide, last screen: what happens without it."},
    {"accessibility_file", "File", "Read aloud for the mark of a file."},
    {"accessibility_grant_permissions_button", "Grant Permission",
     "Button that opens accessibility permissions dialog."},
    {"accessibility_history", "Clipboard history", "Read aloud for the list of copies."},
    {"accessibility_incognito", "Incognito: copies are not kept", "Read aloud for the icon before the search field."},
    {"accessibility_permission_granted", "Permission granted",
     "Read aloud for the check mark of the guide's last screen."},
    {"accessibility_permission_missing", "Permission not granted yet",
     "Read aloud for the check mark of the guide's last screen."},
    {"accessibility_picture", "Picture", "Read aloud for the mark of a picture, and for a picture's row."},
    {"accessibility_row", "%1 of %2", "Read aloud for a row of the history; %1 is its place, %2 how many there are."},
    {"accessibility_scroll_bar", "Scroll bar", "Read aloud for what tells the place in a long list."},
    {"accessibility_title", "Let Quillmonger paste for you", "Guide, last screen: title."},
    {"app_picker_choose", "Choose", "The button that takes the selected application."},
    {"app_picker_empty", "No applications were found on this system.", "Shown instead of an empty list."},
    {"app_picker_loading", "Looking for applications\u2026", "Shown until the list is there."},
    {"app_picker_no_match", "No application matches \u201C%1\u201D.",
     "Shown for a search without a hit; %1 is its term."},
    {"app_picker_search", "Search applications", "Placeholder of the field that searches the list."},
    {"app_picker_title", "Choose an Application", "Title of the window that lists the installed applications."},
    {"byte_count_bytes", "{0, plural, one {# byte} other {# bytes}}", "A size below 1,000 bytes, as an ICU message."},
    {"byte_count_gigabytes", "{0} GB", "A size in gigabytes, as an ICU message."},
    {"byte_count_kilobytes", "{0} KB", "A size in kilobytes, as an ICU message."},
    {"byte_count_megabytes", "{0} MB", "A size in megabytes, as an ICU message."},
    {"byte_count_petabytes", "{0} PB", "A size in petabytes, as an ICU message."},
    {"byte_count_terabytes", "{0} TB", "A size in terabytes, as an ICU message."},
    {"byte_count_zero", "Zero KB", "The size of nothing."},
    {"cancel_string", "Cancel", "The word 'cancel'."},
    {"confirm_string", "OK", "The word 'OK'."},
    {"continue_literal", "Continue", "Guide: the button that leads to the next screen."},
    {"delete_string", "Delete", "The word 'delete'."},
    {"dialog_deny_button", "Not Now", "deny button"},
    {"dialog_description",
     "The copy is on the clipboard: paste it with the application's own keys. To let Quillmonger do that, allow it to "
     "press keys in the system's settings, and paste again.",
     "description for the accessibility dialog"},
    {"dialog_message", "Quillmonger may not paste into other applications yet", "message for the accessibility dialog"},
    {"dialog_open_button", "Open System Settings", "open system settings button"},
    {"empty_space_text", "Nothing copied yet. Your next copy shows up here.",
     "Text shown when the user has no items copied to their clipboard (empty state)."},
    {"error_alert_email_subject", "Quillmonger problem report",
     "Email subject sent when the support button is pressed."},
    {"error_alert_email_support_button", "Write to support", "Email support button."},
    {"error_alert_message", "Quillmonger can't open its history and has to stop. Your data was left as it is.",
     "Message shown in generic error alert."},
    {"error_alert_title", "Something went wrong", "Title shown in generic error alert."},
    {"finish_literal", "Finish", "Guide: the button that ends it."},
    {"formatting_description",
     "Return pastes a copy as it was, with its fonts and colours. Hold the left Alt key as you press it, and only the "
     "text is pasted. The settings can swap the two.",
     "Guide, formatting screen."},
    {"formatting_title", "With formatting or without", "Guide, formatting screen: title."},
    {"guide_video_pause", "Pause the video: %1", "Read aloud for the guide's video; %1 is the screen's title."},
    {"guide_video_play", "Play the video: %1", "Read aloud for the guide's video; %1 is the screen's title."},
    {"guide_video_still", "Picture: %1",
     "Read aloud where the guide's video can't be played; %1 is the screen's title."},
    {"hex_string", "HEX", "The word HEX: a colour in hexadecimal digits."},
    {"hsl_string", "HSL", "The word HSL: a colour by hue, saturation and lightness."},
    {"iso8601_string", "ISO 8601", "The word ISO 8601: a date in its form."},
    {"oculet_indicator", "Recognised content", "Read aloud for the mark of a text with a date, colour or JSON."},
    {"paste_description_1",
     "Choose a copy with the arrow keys and press Return: it is pasted into the window that you came from.",
     "Guide, pasting screen."},
    {"paste_description_2", "Ctrl+1 to Ctrl+9 paste one of the first nine at once.",
     "Guide, pasting screen: below how to paste."},
    {"paste_title", "Paste what you copied before", "Guide, pasting screen: title."},
    {"paste_with_formatting_text", "Paste with formatting",
     "Indicator that the paste will be made with text formatting."},
    {"paste_without_formatting_text", "Paste without formatting",
     "Indicator that the paste will be made without any text formatting."},
    {"preview_appearance_settings_button", "Appearance settings", "Button for navigating to Appearance settings."},
    {"preview_copy_button", "Copy", "Tooltip of the button that copies a value."},
    {"preview_empty_space_text", "Select an item to preview it.",
     "Text shown when the user opens the preview window but no item has been selected."},
    {"preview_oculet_action_error", "The text could not be rewritten. Nothing was copied.",
     "Message shown when a JSON text can't be rewritten."},
    {"preview_oculet_beautify_json", "Beautified JSON",
     "Beside the button that copies the JSON text with a line a value."},
    {"preview_oculet_minify_json", "Minified JSON", "Beside the button that copies the JSON text on one line."},
    {"preview_oculet_tooltip", "Recognised in this text", "Tooltip of a panel with what was recognised."},
    {"preview_text", "Text", "Read aloud for the text of an item."},
    {"preview_text_hidden_disable_button", "Show it all:", "Button for disabling preview hide long text feature."},
    {"preview_text_hidden_text", "The rest of this text is hidden.",
     "Text shown when the preview window hides long texts."},
    {"preview_tutorial_description",
     "Ctrl+P opens a preview with all of a text or picture. The dates, colours and JSON that it recognises can be "
     "copied in other forms.",
     "Guide, preview screen."},
    {"preview_tutorial_title", "Look before you paste", "Guide, preview screen: title."},
    {"previous_literal", "Previous", "Guide: the button that leads to the screen before."},
    {"quick_paste_key", "Ctrl+%1", "The keys that paste a row; %1 is a digit."},
    {"quit_string", "Quit", "The word 'quit'."},
    {"rfc_2822", "RFC 2822", "The word RFC 2822: a date in its form."},
    {"rgb_string", "RGB", "The word RGB: a colour by red, green and blue."},
    {"search_bar_text_field", "Search", "The placeholder text that goes in the search box."},
    {"search_description",
     "Just type. Any part of a text brings the copy up, and so does the name of the application that it came from.",
     "Guide, search screen."},
    {"search_title", "Find it by typing", "Guide, search screen: title."},
    {"settings_description",
     "Passwords and other copies that their application marks as secret are never kept. The settings, on Ctrl+Comma, "
     "say which applications are left out as well; incognito keeps nothing at all.",
     "Guide, settings screen: what is not captured."},
    {"settings_ignore_apps_add", "Add an application", "Read aloud for the button with a plus."},
    {"settings_ignore_apps_empty", "Copies of every application are kept.", "Shown instead of an empty list."},
    {"settings_ignore_apps_remove", "Remove the selected application", "Read aloud for the button with a minus."},
    {"settings_ignore_apps_title", "Ignored applications", "Title of the list of applications that are ignored."},
    {"settings_ignore_images_title", "Ignore pictures", "Switch: copies with a picture are not kept."},
    {"settings_ignore_sensitive_description",
     "Passwords and other copies that their application marks as secret are not kept.",
     "Explains the switch that ignores sensitive copies."},
    {"settings_ignore_sensitive_title", "Ignore sensitive copies", "Switch: copies marked as secret are not kept."},
    {"settings_ignore_title", "Ignore", "Title of the settings about what is not kept."},
    {"settings_title", "You decide what is kept", "Guide, settings screen: title."},
    {"start_literal", "Start", "Guide: the button that leaves the welcome screen."},
    {"startup_description_1", "Press %1, and your history opens over whatever you are doing. Escape closes it.",
     "Guide, first feature: %1 is the chord that shows the history."},
    {"startup_description_1_no_chord",
     "Run the command \u201Cquillmonger toggle\u201D, and your history opens over whatever you are doing. Escape "
     "closes it.",
     "The same where no chord is set."},
    {"startup_description_2",
     "Quillmonger waits in the tray. On a desktop without a tray, these keys and the command \u201Cquillmonger "
     "toggle\u201D do the same.",
     "Guide, first feature: below the chord."},
    {"startup_title", "Your history, from anywhere", "Guide, first feature: title."},
    {"status_bar_about_button", "About Quillmonger", "Status menu: shows the window about the program."},
    {"status_bar_history_literal", "History", "Status menu: heading of the entries about the history."},
    {"status_bar_incognito_button", "Incognito", "Status menu: with its check mark, no copy is kept."},
    {"status_bar_quit_button", "Quit Quillmonger", "Status menu: ends the program."},
    {"status_bar_settings_button", "Settings\u2026", "Status menu: shows the settings."},
    {"status_bar_toggle_button", "Show or Hide History", "Status menu: shows the history, or hides it if it is up."},
    {"status_bar_updates_button", "Check for Updates\u2026", "Status menu: asks for a newer version."},
    {"toggle_preview_pane_button_help", "Show or hide the preview", "Tooltip for the toggle preview pane button."},
    {"unix_string", "Unix", "The word Unix: a date in seconds since 1970."},
    {"welcome_description",
     "Everything that you copy stays at hand, on this computer alone. See in a minute how to find it again and paste "
     "it anywhere.",
     "Guide: text of the welcome screen."},
    {"welcome_message", "Welcome to Quillmonger", "Guide: title of the welcome screen, and of its window."},
});

static_assert(std::ranges::is_sorted(entries, {}, &Entry::key));

}  // namespace

QString Texts::translate(const char* /*context*/, const char* key, const char* /*disambiguation*/,
                         int /*count*/) const {
  const std::string_view wanted = key == nullptr ? std::string_view{} : key;
  const auto entry = std::ranges::lower_bound(entries, wanted, {}, &Entry::key);
  if (entry == entries.end() || entry->key != wanted) return {};
  return QString::fromUtf8(entry->text);
}

std::string localizedText(std::string_view key) { return qtTrId(std::string(key).c_str()).toStdString(); }

}  // namespace quillmonger
