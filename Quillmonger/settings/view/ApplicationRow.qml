import QtQuick
import Quillmonger.Resources
import Quillmonger.Settings

// One installed application: its icon, its name, and its identifier, which tells two of one name apart.
Item {
    id: row

    required property int index
    required property string name
    required property string identifier
    required property string path

    required property AppPickerModel picker
    required property Theme theme

    readonly property bool isSelected: picker.selectedRow === index

    objectName: "InstalledApplication"
    height: 48
    Accessible.role: Accessible.ListItem
    Accessible.name: name
    Accessible.description: identifier
    Accessible.selectable: true
    Accessible.selected: isSelected
    Accessible.onPressAction: picker.select(index)

    Rectangle {
        anchors { fill: parent; leftMargin: 8; rightMargin: 8 }
        visible: row.isSelected
        radius: row.theme.rowRadius
        antialiasing: true
        color: row.theme.highlightColor
    }

    ApplicationIcon {
        id: icon
        anchors { left: parent.left; leftMargin: 16; verticalCenter: parent.verticalCenter }
        path: row.path
        size: row.theme.iconSize
    }

    Column {
        anchors {
            left: icon.right; leftMargin: 12
            right: parent.right; rightMargin: 14
            verticalCenter: parent.verticalCenter
        }
        spacing: 1

        Text {
            objectName: "InstalledApplicationName"
            width: parent.width
            elide: Text.ElideRight
            maximumLineCount: 1
            textFormat: Text.PlainText
            horizontalAlignment: Text.AlignLeft
            renderType: Text.NativeRendering
            font.pixelSize: row.theme.bodyFontSize
            color: row.isSelected ? row.theme.selectedPrimary : row.theme.primary
            text: row.name
        }

        Text {
            width: parent.width
            elide: Text.ElideMiddle
            maximumLineCount: 1
            textFormat: Text.PlainText
            horizontalAlignment: Text.AlignLeft
            renderType: Text.NativeRendering
            font.pixelSize: row.theme.hintFontSize
            color: row.isSelected ? row.theme.selectedSecondary : row.theme.secondary
            text: row.identifier
        }
    }

    MouseArea {
        anchors.fill: parent
        onPressed: row.picker.select(row.index)
        onDoubleClicked: row.picker.choose()
    }
}
