import QtQuick

// A button with a text. Return and Space press it while it has the focus.
Rectangle {
    id: button

    required property string text
    required property Theme theme
    property bool isDefault: false
    // It loses something.
    property bool isDestructive: false
    signal triggered()

    // Keys that stay with this control in every window.
    readonly property var ownKeys: [Qt.Key_Return]

    implicitWidth: Math.max(120, label.implicitWidth + 40)
    implicitHeight: 36
    radius: 8
    antialiasing: true
    activeFocusOnTab: true
    color: isDefault ? theme.highlightColor : theme.separator
    border { width: activeFocus ? 2 : 0; color: theme.accentColor }
    opacity: !enabled ? theme.disabledOpacity : press.pressed ? 0.8 : 1
    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.focusable: true
    Accessible.onPressAction: triggered()
    Keys.onReturnPressed: triggered()
    Keys.onEnterPressed: triggered()
    Keys.onSpacePressed: triggered()

    Text {
        id: label
        anchors.centerIn: parent
        renderType: Text.NativeRendering
        font.pixelSize: button.theme.bodyFontSize
        color: button.isDefault ? button.theme.selectedPrimary
            : button.isDestructive ? button.theme.destructive : button.theme.primary
        text: button.text
        Accessible.ignored: true
    }

    TapHandler {
        id: press
        onTapped: button.triggered()
    }
}
