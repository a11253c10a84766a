import QtQuick
import Quillmonger.Resources

// A menu of one entry over the window that it fills. It has the keyboard while it is open, and gives it back.
FocusScope {
    id: menu

    required property string symbol
    required property string text
    required property Theme theme

    property Item opener: null
    property var action: null
    // Keys that stay with this menu in every window.
    readonly property var ownKeys: [Qt.Key_Escape, Qt.Key_Return, Qt.Key_Up, Qt.Key_Down]

    // At a place of `item`; `triggered` runs when the entry is chosen.
    function open(item: Item, x: real, y: real, triggered: var) {
        const place = item.mapToItem(menu, x, y)
        entry.x = Math.max(Math.min(LayoutMirroring.enabled ? place.x - entry.width : place.x,
                                    menu.width - entry.width - 8), 8)
        entry.y = Math.min(place.y, menu.height - entry.height - 8)
        menu.opener = menu.Window.activeFocusItem
        menu.action = triggered
        menu.forceActiveFocus(Qt.PopupFocusReason)
    }

    function close() {
        menu.action = null
        menu.opener.forceActiveFocus(Qt.PopupFocusReason)
    }

    function trigger() {
        const chosen = menu.action
        menu.close()
        chosen()
    }

    objectName: "ContextMenu"
    visible: action !== null
    Keys.onEscapePressed: close()
    Keys.onReturnPressed: trigger()
    Keys.onEnterPressed: trigger()
    Keys.onSpacePressed: trigger()
    Keys.onPressed: event => event.accepted = true
    Accessible.role: Accessible.PopupMenu

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
        // Not at the press, which would then reach what lies below.
        onReleased: menu.close()
    }

    Rectangle {
        id: entry
        width: Math.max(label.implicitWidth + 64, 140)
        height: 38
        radius: menu.theme.fieldRadius
        antialiasing: true
        color: menu.theme.window
        border { width: 1; color: menu.theme.border }
        Accessible.role: Accessible.MenuItem
        Accessible.name: menu.text
        Accessible.onPressAction: menu.trigger()

        Rectangle {
            anchors { fill: parent; margins: 4 }
            radius: menu.theme.rowRadius
            antialiasing: true
            color: menu.theme.highlightColor
        }

        Symbol {
            id: icon
            anchors { left: parent.left; leftMargin: 14; verticalCenter: parent.verticalCenter }
            name: menu.symbol
            color: menu.theme.selectedPrimary
            size: 16
        }

        Text {
            id: label
            anchors { left: icon.right; leftMargin: 10; verticalCenter: parent.verticalCenter }
            renderType: Text.NativeRendering
            font.pixelSize: menu.theme.bodyFontSize
            color: menu.theme.selectedPrimary
            text: menu.text
            Accessible.ignored: true
        }

        MouseArea {
            objectName: "ContextMenuEntry"
            anchors.fill: parent
            onClicked: menu.trigger()
        }
    }
}
