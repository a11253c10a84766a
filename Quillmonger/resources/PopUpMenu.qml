import QtQuick
import Quillmonger.Resources

// The options of a pop-up button, over the whole window. It has the keyboard while it is open, and gives it back.
FocusScope {
    id: popUp

    // The pop-up button.
    required property Item button

    readonly property Theme theme: button.theme
    // Keys that stay with this menu in every window.
    readonly property var ownKeys: [Qt.Key_Escape, Qt.Key_Return, Qt.Key_Up, Qt.Key_Down]
    property int current: 0

    // The chosen option lies over the button, as far as the window reaches.
    function open() {
        popUp.current = Math.max(popUp.button.selected, 0)
        const place = popUp.button.mapToItem(popUp.parent, 0, 0)
        box.x = place.x
        box.y = Math.max(6, Math.min(place.y - popUp.current * 30 - 4, popUp.height - box.height - 6))
        popUp.visible = true
        popUp.forceActiveFocus(Qt.PopupFocusReason)
    }

    function close() {
        popUp.visible = false
        popUp.button.forceActiveFocus(Qt.PopupFocusReason)
    }

    function choose(option: int) {
        popUp.close()
        popUp.button.chosen(option)
    }

    function moveTo(option: int) { popUp.current = Math.min(Math.max(option, 0), popUp.button.titles.length - 1) }

    objectName: "PopUpMenu"
    LayoutMirroring.enabled: button.isMirrored
    LayoutMirroring.childrenInherit: true
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
        if (event.key === Qt.Key_Home) popUp.moveTo(0)
        if (event.key === Qt.Key_End) popUp.moveTo(popUp.button.titles.length - 1)
        event.accepted = true
    }

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
        // Not at the press, which would then reach what lies below.
        onReleased: popUp.close()
        onWheel: wheel => wheel.accepted = true
    }

    Rectangle {
        id: box
        width: popUp.button.width
        height: options.height + 8
        radius: 8
        antialiasing: true
        color: popUp.theme.window
        border { width: 1; color: popUp.theme.border }

        Column {
            id: options
            anchors { left: parent.left; right: parent.right; top: parent.top; margins: 4 }

            Repeater {
                model: popUp.button.titles

                PopUpOption {
                    width: options.width
                    menu: popUp
                }
            }
        }
    }
}
