import QtQuick
import Settings
import Quillmonger.Resources
import Quillmonger.Settings

// What is not kept: sensitive copies, pictures, and the copies of some applications.
PaneLayout {
    id: pane

    required property IgnoreSettings settings
    required property IgnoredAppsModel apps

    contentWidth: 480
    objectName: "IgnorePane"
    Accessible.name: qsTrId("settings_ignore_title")

    Section {
        SwitchSetting {
            switchName: "IgnoreSensitiveToggle"
            toggle: pane.settings.ignoreSensitiveData
            note: qsTrId("settings_ignore_sensitive_description")
            theme: pane.theme
        }

        SwitchSetting {
            switchName: "IgnoreImagesToggle"
            toggle: pane.settings.ignoreImages
            theme: pane.theme
        }
    }

    Section {
        label: qsTrId("settings_ignore_apps_title")

        IgnoreAppsView {
            readonly property real firstLineHeight: 20

            width: parent.width
            apps: pane.apps
            theme: pane.theme
            menu: menu
        }
    }

    ContextMenu {
        id: menu
        parent: pane
        anchors.fill: parent
        symbol: "trash"
        text: qsTrId("delete_string")
        theme: pane.theme
    }
}
