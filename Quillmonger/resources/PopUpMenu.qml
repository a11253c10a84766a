import QtQuick
import Quillmonger.Resources

// The options of a pop-up button, over the whole window. It has the keyboard while it is open, and gives it back.
FocusScope {
    id: menu

    required property PopUpButton button

    readonly property Theme theme: button.theme
    // Keys that stay with this menu in every window.
    readonly property var ownKeys: [Qt.Key_Escape, Qt.Key_Return, Qt.Key_Up, Qt.Key_Down]
    property int current: 0

    // The chosen option lies over the button, as far as the window reaches.
    function open() {
        menu.current = Math.max(menu.button.selected, 0)
        const place = menu.button.mapToItem(menu.parent, 0, 0)
        box.x = place.x
        box.y = Math.max(6, Math.min(place.y - menu.current * 30 - 4, menu.height - box.height - 6))
        menu.visible = true
        menu.forceActiveFocus(Qt.PopupFocusReason)
    }

    function close() {
        menu.visible = false
        menu.button.forceActiveFocus(Qt.PopupFocusReason)
    }

    function choose(option: int) {
        menu.close()
        menu.button.chosen(option)
    }

    function moveTo(option: int) { menu.current = Math.min(Math.max(option, 0), menu.button.titles.length - 1) }

    objectName: "PopUpMenu"
    parent: button.Window.contentItem
    anchors.fill: parent
    visible: false
    z: 1
    Accessible.role: Accessible.PopupMenu
    Accessible.name: button.text
    Keys.onEscapePressed: close()
    Keys.onReturnPressed: choose(current)
    Keys.onEnterPressed: choose(current)
    Keys.onSpacePressed: choose(current)
    Keys.onUpPressed: moveTo(current - 1)
    Keys.onDownPressed: moveTo(current + 1)
    Keys.onPressed: event => {
        if (event.key === Qt.Key_Home) menu.moveTo(0)
        if (event.key === Qt.Key_End) menu.moveTo(menu.button.titles.length - 1)
        event.accepted = true
    }

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
        // Not at the press, which would then reach what lies below.
        onReleased: menu.close()
        onWheel: wheel => wheel.accepted = true
    }

    Rectangle {
        id: box
        width: menu.button.width
        height: options.height + 8
        radius: 8
        antialiasing: true
        color: menu.theme.window
        border { width: 1; color: menu.theme.border }

        Column {
            id: options
            anchors { left: parent.left; right: parent.right; top: parent.top; margins: 4 }

            Repeater {
                model: menu.button.titles

                PopUpOption {
                    width: options.width
                    menu: menu
                }
            }
        }
    }
}
