import QtQuick

// The edges and corners by which a window without a frame is made larger and smaller.
Item {
    id: edges

    // An edge stays where it is, whichever way the user reads.
    LayoutMirroring.enabled: false
    LayoutMirroring.childrenInherit: true

    Repeater {
        // The corners lie upon the edges.
        model: [
            Qt.LeftEdge, Qt.RightEdge, Qt.TopEdge, Qt.BottomEdge,
            Qt.TopEdge | Qt.LeftEdge, Qt.TopEdge | Qt.RightEdge,
            Qt.BottomEdge | Qt.LeftEdge, Qt.BottomEdge | Qt.RightEdge
        ]

        MouseArea {
            required property int modelData
            readonly property bool isRight: modelData & Qt.RightEdge
            readonly property bool isBottom: modelData & Qt.BottomEdge
            readonly property bool isAtSide: isRight || modelData & Qt.LeftEdge
            readonly property bool isAtEnd: isBottom || modelData & Qt.TopEdge
            readonly property int thickness: isAtSide && isAtEnd ? 14 : 6

            x: isRight ? edges.width - width : 0
            y: isBottom ? edges.height - height : 0
            width: isAtSide ? thickness : edges.width
            height: isAtEnd ? thickness : edges.height
            preventStealing: true
            cursorShape: !isAtEnd ? Qt.SizeHorCursor
                       : !isAtSide ? Qt.SizeVerCursor
                       : isRight === isBottom ? Qt.SizeFDiagCursor : Qt.SizeBDiagCursor
            onPressed: edges.Window.window.startSystemResize(modelData)
        }
    }
}
