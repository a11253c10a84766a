import QtQuick
import Settings

// A segment for each pane, all equally wide.
Item {
    id: item

    required property SettingsModel model
    required property bool hasKeyboard

    readonly property real segmentWidth: {
        let widest = 0
        for (let index = 0; index < row.children.length; ++index)
            widest = Math.max(widest, row.children[index].titleWidth ?? 0)
        return Math.ceil(widest) + 28
    }

    objectName: "toolbarSegmentedControlItem"
    implicitWidth: control.width
    implicitHeight: 54

    Rectangle {
        id: control
        objectName: "toolbarSegmentedControl"
        anchors.centerIn: parent
        width: row.width + 4
        height: 32
        radius: 8
        antialiasing: true
        color: item.palette.midlight
        border { width: item.hasKeyboard ? 2 : 0; color: item.palette.link }

        Row {
            id: row
            x: 2
            y: 2

            Repeater {
                model: item.model.items

                Rectangle {
                    id: segment

                    required property int index
                    required property var modelData
                    readonly property bool isSelected: item.model.selectedTab === index
                    readonly property real titleWidth: title.implicitWidth

                    objectName: modelData.identifier
                    width: item.segmentWidth
                    height: 28
                    radius: 6
                    antialiasing: true
                    color: isSelected ? item.palette.highlight : "transparent"
                    Accessible.role: Accessible.PageTab
                    Accessible.name: modelData.title
                    Accessible.selectable: true
                    Accessible.selected: isSelected
                    Accessible.onPressAction: item.model.choose(index)

                    Text {
                        id: title
                        anchors.centerIn: parent
                        renderType: Text.NativeRendering
                        textFormat: Text.PlainText
                        font.pixelSize: 13
                        color: segment.isSelected ? item.palette.highlightedText : item.palette.windowText
                        text: segment.modelData.title
                        Accessible.ignored: true
                    }

                    TapHandler { onTapped: item.model.choose(segment.index) }
                }
            }
        }
    }
}
