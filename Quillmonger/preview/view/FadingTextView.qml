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
        partAt: height => list.itemAt(list.width / 2, height)
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
