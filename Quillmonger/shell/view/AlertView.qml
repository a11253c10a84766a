import QtQuick
import Quillmonger.Resources

// A question with its buttons, the default one last on the line. Escape gives the last answer.
Rectangle {
    id: alert

    required property string message
    required property string informativeText
    required property var buttons
    required property Appearance appearance
    // The index of the chosen button.
    signal answered(int index)

    readonly property Theme theme: Theme { isDark: alert.appearance.isDark }

    implicitWidth: 460
    implicitHeight: words.height + answers.height + 28 * 2 + 24
    color: theme.window
    Accessible.role: Accessible.AlertMessage
    Accessible.name: message
    Accessible.description: informativeText
    Keys.onEscapePressed: answered(buttons.length - 1)

    Image {
        id: icon
        anchors { left: parent.left; top: parent.top; margins: 28 }
        width: 56
        height: 56
        sourceSize: Qt.size(width * Screen.devicePixelRatio, height * Screen.devicePixelRatio)
        source: "qrc:/qt-project.org/imports/Quillmonger/Resources/quillmonger.svg"
        Accessible.ignored: true
    }

    Column {
        id: words
        anchors { left: icon.right; right: parent.right; top: parent.top; margins: 28; leftMargin: 20 }
        height: Math.max(implicitHeight, icon.height)
        spacing: 8

        Text {
            objectName: "AlertMessage"
            width: parent.width
            wrapMode: Text.WordWrap
            textFormat: Text.PlainText
            renderType: Text.NativeRendering
            font { pixelSize: alert.theme.rowFontSize; bold: true }
            color: alert.theme.primary
            text: alert.message
        }

        Text {
            objectName: "AlertInformativeText"
            width: parent.width
            wrapMode: Text.WordWrap
            textFormat: Text.PlainText
            renderType: Text.NativeRendering
            font.pixelSize: alert.theme.bodyFontSize
            color: alert.theme.secondary
            text: alert.informativeText
        }
    }

    Row {
        id: answers
        anchors { right: parent.right; bottom: parent.bottom; margins: 28 }
        layoutDirection: Qt.RightToLeft
        spacing: 12

        Repeater {
            model: alert.buttons

            PushButton {
                required property int index
                required property string modelData

                objectName: "AlertButton" + index
                focus: index === 0
                isDefault: index === 0
                text: modelData
                theme: alert.theme
                onTriggered: alert.answered(index)
            }
        }
    }
}
