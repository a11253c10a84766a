import QtQuick
import Quillmonger.Resources

// A rounded outline with a symbol in an opening at the middle of its top edge.
Item {
    id: frame

    required property string symbolName
    required property string toolTip
    required property color color
    required property color symbolColor
    // Of what lies behind the outline.
    required property color background
    required property Theme theme
    property int lineWidth: 2
    property int cornerRadius: 15
    property int symbolSize: 20

    readonly property real topGapWidth: symbolSize + Math.max(symbolSize * 0.35, 4)

    objectName: "RectangleWithSymbol"

    // The line lies half inside and half outside of the item's edges.
    Rectangle {
        anchors { fill: parent; margins: -frame.lineWidth / 2 }
        radius: frame.cornerRadius + frame.lineWidth / 2
        antialiasing: true
        color: "transparent"
        border { width: frame.lineWidth; color: frame.color }
    }

    Rectangle {
        objectName: "RectangleGap"
        anchors { horizontalCenter: parent.horizontalCenter; verticalCenter: parent.top }
        width: frame.topGapWidth
        height: frame.lineWidth + 2
        color: frame.background
    }

    Symbol {
        objectName: "RectangleSymbol"
        anchors { horizontalCenter: parent.horizontalCenter; verticalCenter: parent.top }
        name: frame.symbolName
        color: frame.symbolColor
        size: frame.symbolSize
        Accessible.role: Accessible.Graphic
        Accessible.name: frame.toolTip

        HoverTip {
            text: frame.toolTip
            theme: frame.theme
        }
    }
}
