import QtQuick
import Quillmonger.Preview
import Quillmonger.Resources

// A text of any length, of which only what is seen is laid out. The end of one that is shown in part fades out, with a
// notice below it. What stands above the text, the header, scrolls with it.
ListView {
    id: list

    required property PreviewModel preview
    required property Theme theme

    readonly property real textTop: originY + (headerItem ? headerItem.height : 0)
    readonly property real textBottom: footerItem ? footerItem.y : textTop

    function scrollBy(distance: real) {
        contentY += distance
        returnToBounds()
    }

    objectName: "FadingTextView"
    model: preview.text
    clip: true
    boundsBehavior: Flickable.StopAtBounds
    keyNavigationEnabled: false
    currentIndex: -1
    // The height of the whole text counts where its end fades out. There are few pieces then, unless the characters of
    // the text are absurdly long.
    cacheBuffer: preview.isTextHidden && count <= 128 ? 1000000 : 400
    Accessible.role: Accessible.Pane
    Accessible.name: qsTrId("preview_text")

    Connections {
        target: list.preview
        function onScrollRequested(pages) { list.scrollBy(pages * list.height * 0.9) }
    }

    delegate: TextPiece {
        x: list.theme.previewMargin
        width: ListView.view.width - 2 * list.theme.previewMargin
        selection: list.preview.selection
        theme: list.theme
    }

    footer: Item {
        width: ListView.view.width
        height: (notice.visible ? notice.height + list.theme.previewMargin : 0) + list.theme.previewMargin

        HiddenTextNotice {
            id: notice
            anchors { horizontalCenter: parent.horizontalCenter; top: parent.top; topMargin: list.theme.previewMargin }
            visible: list.preview.isTextHidden
            theme: list.theme
            onSettingsRequested: list.preview.showAppearanceSettings()
        }
    }

    // Selects text. It is no part of a piece, which goes when it is scrolled away.
    MouseArea {
        id: pointer
        objectName: "TextPointer"

        // Where the pointer is, from the list's own edge, and how far beyond it.
        property point place
        readonly property real beyond: place.y < 0 ? place.y : Math.max(0, place.y - list.height)

        function pieceAt(height: real): TextPiece {
            return list.itemAt(list.width / 2, Math.max(list.textTop, Math.min(list.textBottom - 1, height)))
        }

        function extend() {
            const height = list.contentY + Math.max(0, Math.min(list.height - 1, place.y))
            const piece = pieceAt(height)
            if (piece) piece.selectTo(place.x - piece.x, height - piece.y)
        }

        parent: list.contentItem
        y: list.textTop
        z: 3
        width: list.width
        height: list.textBottom - list.textTop
        cursorShape: Qt.IBeamCursor
        preventStealing: true
        onPressed: mouse => {
            place = Qt.point(mouse.x, mouse.y + y - list.contentY)
            const piece = pieceAt(mouse.y + y)
            if (piece) piece.selectFrom(mouse.x - piece.x, mouse.y + y - piece.y)
        }
        onPositionChanged: mouse => {
            place = Qt.point(mouse.x, mouse.y + y - list.contentY)
            extend()
        }
        onDoubleClicked: mouse => {
            const piece = pieceAt(mouse.y + y)
            if (piece) piece.selectWordAt(mouse.x - piece.x, mouse.y + y - piece.y)
        }

        // The further beyond the edge, the faster.
        Timer {
            interval: 16
            repeat: true
            running: pointer.pressed && pointer.beyond !== 0
            onTriggered: {
                list.scrollBy(pointer.beyond / 4)
                pointer.extend()
            }
        }
    }

    // From full at 99 hundredths of the text's height to nothing half a hundredth below.
    Rectangle {
        objectName: "TextFade"
        parent: list.contentItem
        y: list.textBottom - height
        // The list has its pieces at 1.
        z: 2
        width: list.width
        height: (list.textBottom - list.textTop) * 0.01
        visible: list.preview.isTextHidden
        gradient: Gradient {
            GradientStop { position: 0; color: Qt.alpha(list.theme.window, 0) }
            GradientStop { position: 0.5; color: list.theme.window }
        }
    }
}
