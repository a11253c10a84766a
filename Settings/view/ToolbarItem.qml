import QtQuick
import Settings

// A pane's symbol above its title.
Item {
    id: item

    required property int index
    required property var modelData
    required property SettingsModel model
    required property bool hasKeyboard

    readonly property bool isSelected: model.selectedTab === index
    readonly property color ink: isSelected ? palette.link : palette.windowText

    objectName: "ToolbarItem-" + modelData.identifier
    implicitWidth: Math.max(68, title.implicitWidth + 20)
    implicitHeight: 54
    Accessible.role: Accessible.PageTab
    Accessible.name: modelData.title
    Accessible.description: modelData.description
    Accessible.selectable: true
    Accessible.selected: isSelected
    Accessible.focused: hasKeyboard && isSelected
    Accessible.onPressAction: model.choose(index)

    Rectangle {
        anchors.fill: parent
        radius: 8
        antialiasing: true
        color: item.isSelected ? item.palette.midlight : hover.hovered ? item.palette.alternateBase : "transparent"
        border { width: item.hasKeyboard && item.isSelected ? 2 : 0; color: item.palette.link }
    }

    Image {
        anchors { horizontalCenter: parent.horizontalCenter; top: parent.top; topMargin: 7 }
        width: 22
        height: 22
        sourceSize: Qt.size(width * Screen.devicePixelRatio, height * Screen.devicePixelRatio)
        source: item.modelData.icon + "?" + item.ink
        opacity: press.pressed ? 0.7 : 1
        Accessible.ignored: true
    }

    Text {
        id: title
        anchors { horizontalCenter: parent.horizontalCenter; bottom: parent.bottom; bottomMargin: 6 }
        renderType: Text.NativeRendering
        textFormat: Text.PlainText
        font.pixelSize: 12
        color: item.ink
        text: item.modelData.title
        Accessible.ignored: true
    }

    HoverHandler { id: hover }

    TapHandler {
        id: press
        onTapped: item.model.choose(item.index)
    }
}
