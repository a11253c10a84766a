import QtQuick
import Quillmonger.Resources

// Shows which of a few options is chosen, and offers them in a menu. It only asks for another one; the owner sets it.
Rectangle {
    id: button

    // What is chosen here, for those who can't see its label.
    required property string text
    required property var titles
    // -1 when none of them is chosen.
    required property int selected
    required property string selectedTitle
    required property Theme theme
    signal chosen(int option)

    // Keys that stay with this control in every window.
    readonly property var ownKeys: [Qt.Key_Return, Qt.Key_Up, Qt.Key_Down]

    readonly property bool isMirrored: LayoutMirroring.enabled

    function open() { menu.open() }

    implicitWidth: {
        let widest = 0
        for (const title of titles)
            widest = Math.max(widest, metrics.advanceWidth(title))
        return Math.max(200, Math.ceil(widest) + 48)
    }
    implicitHeight: 30
    radius: 7
    antialiasing: true
    activeFocusOnTab: true
    color: press.pressed ? theme.separator : theme.field
    border { width: 1; color: theme.border }
    opacity: enabled ? 1 : theme.disabledOpacity
    Accessible.role: Accessible.ComboBox
    Accessible.name: text
    Accessible.description: selectedTitle
    Accessible.focusable: true
    Accessible.onPressAction: open()
    Keys.onReturnPressed: open()
    Keys.onEnterPressed: open()
    Keys.onSpacePressed: open()
    Keys.onUpPressed: open()
    Keys.onDownPressed: open()

    FontMetrics {
        id: metrics
        font.pixelSize: button.theme.paneFontSize
    }

    Text {
        anchors { left: parent.left; right: arrows.left; leftMargin: 12; rightMargin: 6; verticalCenter: parent.verticalCenter }
        elide: Text.ElideRight
        maximumLineCount: 1
        horizontalAlignment: Text.AlignLeft
        renderType: Text.NativeRendering
        textFormat: Text.PlainText
        font.pixelSize: button.theme.paneFontSize
        color: button.theme.primary
        text: button.selectedTitle
        Accessible.ignored: true
    }

    Symbol {
        id: arrows
        anchors { right: parent.right; rightMargin: 8; verticalCenter: parent.verticalCenter }
        name: "chevron.up.chevron.down"
        color: button.theme.secondary
        size: 16
    }

    FocusRing {
        radius: button.radius + 3
        control: button
        theme: button.theme
    }

    TapHandler {
        id: press
        onTapped: button.open()
    }

    PopUpMenu {
        id: menu
        button: button
    }
}
