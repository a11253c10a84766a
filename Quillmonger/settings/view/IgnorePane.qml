import QtQuick
import Quillmonger.Resources
import Quillmonger.Settings

// What is not kept: sensitive copies, pictures, and the copies of some applications.
Item {
    id: pane

    required property IgnoreSettings settings
    required property IgnoredAppsModel apps
    required property Appearance appearance

    readonly property Theme theme: Theme { isDark: pane.appearance.isDark }

    LayoutMirroring.enabled: Qt.application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true
    implicitWidth: 480
    implicitHeight: column.height + theme.paneMargin * 2
    focus: true
    Accessible.role: Accessible.Pane
    Accessible.name: qsTrId("settings_ignore_title")

    Rectangle {
        anchors.fill: parent
        color: pane.theme.window
    }

    Column {
        id: column
        anchors { left: parent.left; right: parent.right; top: parent.top; margins: pane.theme.paneMargin }
        spacing: 18

        SwitchSetting {
            width: parent.width
            switchName: "IgnoreSensitiveToggle"
            toggle: pane.settings.ignoreSensitiveData
            note: qsTrId("settings_ignore_sensitive_description")
            theme: pane.theme
        }

        SwitchSetting {
            width: parent.width
            switchName: "IgnoreImagesToggle"
            toggle: pane.settings.ignoreImages
            theme: pane.theme
        }

        Rectangle {
            width: parent.width
            height: 1
            color: pane.theme.separator
        }

        Column {
            width: parent.width
            spacing: 10

            Text {
                width: parent.width
                elide: Text.ElideRight
                horizontalAlignment: Text.AlignLeft
                renderType: Text.NativeRendering
                font.pixelSize: pane.theme.bodyFontSize
                color: pane.theme.primary
                text: qsTrId("settings_ignore_apps_title")
                Accessible.ignored: true
            }

            IgnoreAppsView {
                width: parent.width
                apps: pane.apps
                theme: pane.theme
                menu: menu
            }
        }
    }

    ContextMenu {
        id: menu
        anchors.fill: parent
        symbol: "trash"
        text: qsTrId("delete_string")
        theme: pane.theme
    }
}
