import QtQuick
import Settings
import Quillmonger.Resources
import Quillmonger.Settings

PaneLayout {
    id: pane

    required property GeneralSettings settings

    readonly property bool isWindowActive: Window.active
    onIsWindowActiveChanged: if (isWindowActive) settings.refresh()

    contentWidth: 500
    objectName: "GeneralPane"
    Accessible.name: qsTrId("settings_general_title")

    Section {
        label: qsTrId("sound_effects_title")

        SwitchSetting {
            switchName: "SoundEffectsToggle"
            toggle: pane.settings.soundEffects
            isTitled: false
            theme: pane.theme
        }
    }

    Section {
        label: qsTrId("sound_effects_volume_title")

        Slider {
            objectName: "SoundVolumeSlider"
            anchors.left: parent.left
            width: 220
            text: qsTrId("sound_effects_volume_title")
            valueText: qsTrId("sound_effects_volume_value").arg(Math.round(value * 100))
            value: pane.settings.soundVolume.value
            from: pane.settings.soundVolume.from
            to: pane.settings.soundVolume.to
            stepSize: pane.settings.soundVolume.step
            theme: pane.theme
            onMoved: value => pane.settings.soundVolume.set(value)
        }
    }

    Section {
        label: qsTrId("settings_startup_title")

        SwitchSetting {
            switchName: "LaunchAtLoginToggle"
            toggle: pane.settings.launchAtLogin
            theme: pane.theme
        }

        SwitchSetting {
            switchName: "GettingStartedToggle"
            toggle: pane.settings.firstLaunch
            note: qsTrId("settings_toggle_getting_started_hint")
            theme: pane.theme
        }
    }

    Section {
        label: qsTrId("settings_update_title")

        SwitchSetting {
            switchName: "CheckForUpdatesToggle"
            enabled: pane.settings.canUpdate
            toggle: pane.settings.checksForUpdates
            theme: pane.theme
        }

        SwitchSetting {
            switchName: "DownloadUpdatesToggle"
            enabled: pane.settings.canUpdate
            toggle: pane.settings.downloadsUpdates
            note: pane.settings.canUpdate ? "" : qsTrId("settings_updates_unavailable")
            theme: pane.theme
        }
    }

    Section {
        label: qsTrId("settings_general_clipboard_title")

        SwitchSetting {
            switchName: "PasteWithoutFormattingToggle"
            toggle: pane.settings.pasteWithoutFormatting
            note: qsTrId("settings_paste_without_formatting_description")
            theme: pane.theme
        }
    }

    Section {
        label: qsTrId("settings_clipboard_size_title")

        PickerSetting {
            pickerName: "HistorySizePicker"
            choice: pane.settings.historySize
            label: qsTrId("settings_clipboard_size_title")
            note: qsTrId("settings_clipboard_size_description")
            theme: pane.theme
        }

        SwitchSetting {
            switchName: "PersistHistoryToggle"
            toggle: pane.settings.persistHistory
            note: qsTrId("settings_persist_history_description")
            theme: pane.theme
        }

        Column {
            width: parent.width
            spacing: 5

            PushButton {
                objectName: "ClearHistoryButton"
                anchors.left: parent.left
                width: Math.min(implicitWidth, parent.width)
                isDestructive: true
                text: qsTrId("settings_clipboard_clear_history_button")
                theme: pane.theme
                onTriggered: pane.settings.clearHistory()
            }

            SettingNote {
                theme: pane.theme
                text: qsTrId("settings_clipboard_clear_history_hint")
            }
        }
    }

    Section {
        label: qsTrId("clipboard_on_paste_title")

        RadioGroup {
            objectName: "OnPasteChoice"
            choice: pane.settings.pasteToApp
            hints: [qsTrId("clipboard_on_paste_to_app_hint"), qsTrId("clipboard_on_paste_to_clipboard_hint")]
            hintWidth: 380
            label: qsTrId("clipboard_on_paste_title")
            theme: pane.theme
        }
    }
}
