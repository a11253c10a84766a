import QtQuick
import Quillmonger.Resources

// A button with a text, and mostly a symbol. Return and Space press it while it has the focus.
Rectangle {
    id: button

    required property string text
    required property Theme theme
    property string symbol: ""
    property bool isDefault: false
    property int leastWidth: 96
    signal triggered()

    // Keys that act in the guide and nowhere else, also while the history has keys of its own.
    readonly property var ownKeys: [
        Qt.Key_Return, Qt.Key_Escape, Qt.Key_Up, Qt.Key_Down, Qt.Key_Left, Qt.Key_Right, Qt.Key_Backspace,
        Qt.Key_Delete, Qt.Key_1, Qt.Key_2, Qt.Key_3, Qt.Key_4, Qt.Key_5, Qt.Key_6, Qt.Key_7, Qt.Key_8, Qt.Key_9
    ]

    implicitWidth: Math.max(leastWidth, content.implicitWidth + 16)
    implicitHeight: 34
    radius: theme.fieldRadius
    antialiasing: true
    activeFocusOnTab: true
    color: isDefault ? theme.highlightColor : theme.separator
    opacity: !enabled ? theme.disabledOpacity : press.pressed ? 0.8 : 1
    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.focusable: true
    Accessible.onPressAction: triggered()
    Keys.onReturnPressed: triggered()
    Keys.onEnterPressed: triggered()
    Keys.onSpacePressed: triggered()

    Row {
        id: content
        anchors.centerIn: parent
        spacing: 6

        Loader {
            anchors.verticalCenter: parent.verticalCenter
            active: button.symbol !== ""
            visible: active
            sourceComponent: Symbol {
                name: button.symbol
                color: label.color
                size: 17
            }
        }

        Text {
            id: label
            anchors.verticalCenter: parent.verticalCenter
            renderType: Text.NativeRendering
            font.pixelSize: button.theme.previewFontSize
            color: button.isDefault ? button.theme.selectedPrimary : button.theme.primary
            text: button.text
            Accessible.ignored: true
        }
    }

    FocusRing {
        radius: button.radius + 3
        control: button
        theme: button.theme
    }

    TapHandler {
        id: press
        onTapped: button.triggered()
    }
}
