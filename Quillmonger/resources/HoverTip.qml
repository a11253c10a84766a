import QtQuick

// Says in words what an item is when the pointer rests on it.
Item {
    id: tip

    required property string text
    required property Theme theme

    property bool isDue: false
    readonly property bool isMirrored: LayoutMirroring.enabled

    function await(isHovered: bool) {
        tip.isDue = false
        wait.running = isHovered
    }

    // Below the item, or above it where the window ends; never beyond the item's far edge.
    function open() {
        const edge = tip.mapToItem(box.parent, tip.isMirrored ? 0 : tip.width, 0)
        const below = edge.y + tip.height + 4
        box.x = Math.max(4, tip.isMirrored ? edge.x : edge.x - box.width)
        box.y = below + box.height < box.parent.height ? below : edge.y - box.height - 4
        tip.isDue = true
    }

    anchors.fill: parent

    HoverHandler { onHoveredChanged: tip.await(hovered) }

    Timer {
        id: wait
        interval: tip.theme.tipDelay
        onTriggered: tip.open()
    }

    Rectangle {
        id: box
        objectName: "HoverTip"
        parent: tip.Window.contentItem
        visible: tip.isDue
        z: 1
        width: words.implicitWidth + 16
        height: words.implicitHeight + 8
        radius: 5
        antialiasing: true
        color: tip.theme.field
        border { width: 1; color: tip.theme.border }

        Text {
            id: words
            anchors.centerIn: parent
            textFormat: Text.PlainText
            renderType: Text.NativeRendering
            font.pixelSize: tip.theme.hintFontSize
            color: tip.theme.primary
            text: tip.text
            Accessible.ignored: true
        }
    }
}
