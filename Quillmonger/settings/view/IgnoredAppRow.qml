import QtQuick
import Quillmonger.Resources
import Quillmonger.Settings

// One ignored application.
Item {
    id: row

    required property int index
    required property string name
    required property string path

    required property IgnoredAppsModel apps
    // The item that has the keyboard while the list has it.
    required property Item focusHolder
    required property ContextMenu menu
    required property Theme theme

    readonly property bool isSelected: apps.selectedRow === index
    readonly property bool isHighlighted: isSelected && focusHolder.activeFocus

    // `x` and `y` of this row.
    function showMenu(x: real, y: real) { row.menu.open(row, x, y, () => row.apps.remove(row.index)) }

    function takeFocus() {
        row.apps.select(row.index)
        row.focusHolder.forceActiveFocus(Qt.MouseFocusReason)
    }

    objectName: "IgnoredApp"
    height: 36
    Accessible.role: Accessible.ListItem
    Accessible.name: name
    Accessible.selectable: true
    Accessible.selected: isSelected
    Accessible.onPressAction: apps.select(index)

    Rectangle {
        anchors { fill: parent; leftMargin: 8; rightMargin: 8 }
        visible: row.isSelected
        radius: row.theme.rowRadius
        antialiasing: true
        color: row.isHighlighted ? row.theme.highlightColor : row.theme.separator
    }

    ApplicationIcon {
        id: icon
        anchors { left: parent.left; leftMargin: 16; verticalCenter: parent.verticalCenter }
        path: row.path
        size: 24
    }

    Text {
        objectName: "IgnoredAppName"
        anchors {
            left: icon.right; leftMargin: 10
            right: parent.right; rightMargin: 14
            verticalCenter: parent.verticalCenter
        }
        elide: Text.ElideRight
        maximumLineCount: 1
        textFormat: Text.PlainText
        horizontalAlignment: Text.AlignLeft
        renderType: Text.NativeRendering
        font.pixelSize: row.theme.bodyFontSize
        color: row.isHighlighted ? row.theme.selectedPrimary : row.theme.primary
        text: row.name
    }

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.LeftButton | Qt.RightButton
        onPressed: mouse => {
            row.takeFocus()
            if (mouse.button === Qt.RightButton) row.showMenu(mouse.x, mouse.y)
        }
    }
}
