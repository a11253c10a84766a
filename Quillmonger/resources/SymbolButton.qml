import QtQuick

// A button with a symbol. Return and Space press it while it has the focus.
Rectangle {
    id: button

    required property string symbol
    required property string text
    required property Theme theme
    property int symbolSize: 16
    property color symbolColor: theme.primary
    signal triggered()

    // Keys that stay with this control in every window.
    readonly property var ownKeys: [Qt.Key_Return]

    implicitWidth: 28
    implicitHeight: 24
    radius: 5
    antialiasing: true
    activeFocusOnTab: true
    color: enabled && (hover.hovered || press.pressed) ? theme.separator : "transparent"
    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.focusable: true
    Accessible.onPressAction: triggered()
    Keys.onReturnPressed: triggered()
    Keys.onEnterPressed: triggered()
    Keys.onSpacePressed: triggered()

    Symbol {
        anchors.centerIn: parent
        opacity: button.enabled ? (press.pressed ? 0.7 : 1) : button.theme.disabledOpacity
        name: button.symbol
        color: button.symbolColor
        size: button.symbolSize
    }

    FocusRing {
        anchors.margins: 0
        radius: button.radius
        control: button
        theme: button.theme
    }

    HoverHandler { id: hover }

    TapHandler {
        id: press
        // Not for what lies below the button, too.
        gesturePolicy: TapHandler.WithinBounds
        onTapped: button.triggered()
    }
}
