import QtQuick

// Where what is visible lies in the whole of a list or a page. Dragging it scrolls.
Item {
    id: indicator

    required property Flickable list
    required property Theme theme

    readonly property real least: 28 / Math.max(height, 1)
    readonly property real share: Math.max(list.visibleArea.heightRatio, least)
    readonly property real hidden: Math.max(1 - list.visibleArea.heightRatio, 0.0001)

    width: 4
    Accessible.role: Accessible.ScrollBar
    Accessible.name: qsTrId("accessibility_scroll_bar")

    Rectangle {
        width: parent.width
        height: indicator.share * indicator.height
        y: indicator.list.visibleArea.yPosition / indicator.hidden * (indicator.height - height)
        radius: width / 2
        antialiasing: true
        color: indicator.theme.scrollBar
    }

    MouseArea {
        anchors { fill: parent; margins: -3 }
        readonly property real travel: Math.max(height * (1 - indicator.share), 1)
        readonly property real place: Math.min(Math.max((mouseY - height * indicator.share / 2) / travel, 0), 1)
        onPositionChanged: indicator.list.contentY = indicator.list.originY
            + place * (indicator.list.contentHeight - indicator.list.height)
    }
}
