import QtQuick
import Quillmonger.Resources
import Quillmonger.Settings

// The installed applications, to choose one of.
FocusScope {
    id: picker

    required property AppPickerModel model
    required property Appearance appearance

    readonly property Theme theme: Theme { isDark: picker.appearance.isDark }

    LayoutMirroring.enabled: Qt.application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true
    implicitWidth: 440
    implicitHeight: 500
    focus: true
    Keys.onEscapePressed: model.cancel()

    Rectangle {
        anchors.fill: parent
        color: picker.theme.window
    }

    ApplicationSearchField {
        id: field
        anchors { left: parent.left; right: parent.right; top: parent.top; margins: 16 }
        focus: true
        model: picker.model
        pageSize: Math.max(Math.floor(list.height / 48) - 1, 1)
        theme: picker.theme
    }

    ApplicationList {
        id: list
        anchors {
            left: parent.left; right: parent.right; top: field.bottom; bottom: buttons.top
            margins: 16; topMargin: 12
        }
        model: picker.model
        theme: picker.theme
    }

    Row {
        id: buttons
        anchors { right: parent.right; bottom: parent.bottom; margins: 16 }
        spacing: 10

        PushButton {
            objectName: "AppPickerCancel"
            text: qsTrId("cancel_string")
            theme: picker.theme
            onTriggered: picker.model.cancel()
        }

        PushButton {
            objectName: "AppPickerChoose"
            enabled: picker.model.selectedRow >= 0
            isDefault: true
            text: qsTrId("app_picker_choose")
            theme: picker.theme
            onTriggered: picker.model.choose()
        }
    }
}
