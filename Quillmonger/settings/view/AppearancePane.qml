import QtQuick
import Settings
import Quillmonger.Resources
import Quillmonger.Settings

PaneLayout {
    id: pane

    required property AppearanceSettings settings

    contentWidth: 490
    objectName: "AppearancePane"
    Accessible.name: qsTrId("settings_appearance_title")

    Section {
        label: qsTrId("settings_appearance_color_scheme_title")

        PickerSetting {
            pickerName: "ColorSchemePicker"
            choice: pane.settings.colorScheme
            label: qsTrId("settings_appearance_color_scheme_title")
            theme: pane.theme
        }
    }

    Section {
        label: qsTrId("status_bar_title")

        SwitchSetting {
            switchName: "AnimateMenuBarToggle"
            toggle: pane.settings.animateMenuBar
            theme: pane.theme
        }
    }

    Section {
        label: qsTrId("settings_appearance_clipboard_title")

        SwitchSetting {
            switchName: "SourceAppIconToggle"
            toggle: pane.settings.sourceAppIcon
            theme: pane.theme
        }

        SwitchSetting {
            switchName: "KeyboardShortcutsToggle"
            toggle: pane.settings.keyboardShortcuts
            theme: pane.theme
        }

        SwitchSetting {
            switchName: "ScrollbarToggle"
            toggle: pane.settings.scrollbar
            theme: pane.theme
        }

        SwitchSetting {
            switchName: "ColorIndicatorToggle"
            toggle: pane.settings.colorIndicator
            theme: pane.theme
        }

        SwitchSetting {
            switchName: "ContentTypeIndicatorsToggle"
            toggle: pane.settings.contentTypeIndicators
            theme: pane.theme
        }
    }

    Section {
        label: qsTrId("settings_clipboard_truncation_mode_title")

        PickerSetting {
            pickerName: "TruncationModePicker"
            choice: pane.settings.truncationMode
            label: qsTrId("settings_clipboard_truncation_mode_title")
            note: qsTrId("settings_clipboard_truncation_mode_description")
            theme: pane.theme
        }
    }

    Section {
        label: qsTrId("preview_title")

        SwitchSetting {
            switchName: "HideLargeTextToggle"
            toggle: pane.settings.hideLongText
            note: qsTrId("preview_hide_large_text_hint")
            noteWidth: 420
            theme: pane.theme
        }

        SwitchSetting {
            switchName: "PreviewScrollbarToggle"
            toggle: pane.settings.previewScrollbar
            theme: pane.theme
        }

        SwitchSetting {
            switchName: "AutoOpenImageToggle"
            toggle: pane.settings.autoOpenImage
            theme: pane.theme
        }

        SwitchSetting {
            switchName: "AutoOpenOculetToggle"
            toggle: pane.settings.autoOpenOculet
            theme: pane.theme
        }
    }
}
