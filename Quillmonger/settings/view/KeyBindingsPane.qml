import QtQuick
import Settings
import Quillmonger.Resources
import Quillmonger.Settings

PaneLayout {
    id: pane

    required property KeyBindingsSettings settings

    contentWidth: 480
    objectName: "KeyBindingsPane"
    Accessible.name: qsTrId("settings_key_bindings_title")

    Section {
        label: qsTrId("settings_show_clipboard_text")

        Column {
            readonly property real firstLineHeight: activate.height

            width: parent.width
            spacing: 5

            Recorder {
                id: activate
                objectName: "ActivateRecorder"
                anchors.left: parent.left
                width: Math.min(implicitWidth, parent.width)
                recorders: pane.settings.recorders
                name: "activate"
                label: qsTrId("settings_show_clipboard_text")
                theme: pane.theme
            }

            SettingNote {
                theme: pane.theme
                text: qsTrId("settings_show_clipboard_description")
            }
        }
    }

    Section {
        label: qsTrId("settings_enable_quick_paste_title")

        SwitchSetting {
            switchName: "QuickPasteToggle"
            toggle: pane.settings.quickPaste
            isTitled: false
            note: qsTrId("settings_enable_quick_paste_description")
            noteWidth: 350
            theme: pane.theme
        }
    }

    Section {
        label: qsTrId("settings_quick_paste_item_1")

        Recorder {
            objectName: "QuickPaste1Recorder"
            anchors.left: parent.left
            width: Math.min(implicitWidth, parent.width)
            recorders: pane.settings.recorders
            name: "quickPaste1"
            label: qsTrId("settings_quick_paste_item_1")
            theme: pane.theme
        }
    }

    Section {
        label: qsTrId("settings_quick_paste_item_2")

        Recorder {
            objectName: "QuickPaste2Recorder"
            anchors.left: parent.left
            width: Math.min(implicitWidth, parent.width)
            recorders: pane.settings.recorders
            name: "quickPaste2"
            label: qsTrId("settings_quick_paste_item_2")
            theme: pane.theme
        }
    }

    Section {
        label: qsTrId("settings_quick_paste_item_3")

        Recorder {
            objectName: "QuickPaste3Recorder"
            anchors.left: parent.left
            width: Math.min(implicitWidth, parent.width)
            recorders: pane.settings.recorders
            name: "quickPaste3"
            label: qsTrId("settings_quick_paste_item_3")
            theme: pane.theme
        }
    }

    Section {
        PushButton {
            objectName: "RestoreDefaultsButton"
            anchors.left: parent.left
            width: Math.min(implicitWidth, parent.width)
            text: qsTrId("restore_defaults_button")
            theme: pane.theme
            onTriggered: pane.settings.restoreDefaults()
        }
    }
}
