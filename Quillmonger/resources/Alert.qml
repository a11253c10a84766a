import QtQuick
import Quillmonger.Resources

// A question with its buttons, the first one last on the line. Each has a `title` and a `role`: "standard",
// "destructive" or "cancel". Return presses the button with the keyboard, which is the first standard one, or else the
// one that cancels.
Rectangle {
    id: alert

    required property string message
    required property string informativeText
    required property var buttons
    // Of the button that Escape chooses.
    required property int cancelIndex
    required property Appearance appearance
    // The index of the chosen button.
    signal answered(int index)

    readonly property Theme theme: Theme { isDark: alert.appearance.isDark }
    readonly property int standardIndex: buttons.findIndex(button => button.role === "standard")
    readonly property int focusIndex: standardIndex >= 0 ? standardIndex : cancelIndex

    LayoutMirroring.enabled: Qt.application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true
    implicitWidth: Math.max(460, answers.width + 28 * 2)
    implicitHeight: words.height + answers.height + 28 * 2 + 24
    color: theme.window
    Accessible.role: Accessible.AlertMessage
    Accessible.name: message
    Accessible.description: informativeText
    Keys.onEscapePressed: answered(cancelIndex)

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
            horizontalAlignment: Text.AlignLeft
            wrapMode: Text.Wrap
            textFormat: Text.PlainText
            renderType: Text.NativeRendering
            font { pixelSize: alert.theme.rowFontSize; bold: true }
            color: alert.theme.primary
            text: alert.message
        }

        Text {
            objectName: "AlertInformativeText"
            width: parent.width
            visible: text !== ""
            horizontalAlignment: Text.AlignLeft
            wrapMode: Text.Wrap
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
                required property var modelData

                objectName: "AlertButton" + index
                focus: index === alert.focusIndex
                isDefault: index === alert.standardIndex
                isDestructive: modelData.role === "destructive"
                text: modelData.title
                theme: alert.theme
                onTriggered: alert.answered(index)
            }
        }
    }
}
