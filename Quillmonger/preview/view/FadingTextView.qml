import QtQuick
import Quillmonger.Preview
import Quillmonger.Resources

// A text of any length, of which only what is seen is laid out. The end of one that is shown in part fades out, with a
// notice below it. What stands above the text, the header, scrolls with it.
ListView {
    id: list

    required property PreviewModel preview
    required property Theme theme

    // The keyboard came to the list by a click, which needs no ring to show it.
    property bool isPointedAt: false

    readonly property real textTop: headerItem ? headerItem.y + headerItem.height : 0
    readonly property real textBottom: footerItem ? footerItem.y : textTop

    function point() {
        isPointedAt = true
        forceActiveFocus(Qt.MouseFocusReason)
    }

    function scrollBy(distance: real) {
        contentY += distance
        returnToBounds()
    }

    objectName: "FadingTextView"
    model: preview.text
    clip: true
    boundsBehavior: Flickable.StopAtBounds
    keyNavigationEnabled: false
    activeFocusOnTab: true
    onActiveFocusChanged: isPointedAt = isPointedAt && activeFocus
    Accessible.role: Accessible.Pane
    Accessible.name: qsTrId("preview_text")
    Accessible.focusable: true

    delegate: TextPiece {
        x: list.theme.previewMargin
        width: ListView.view.width - 2 * list.theme.previewMargin
        selection: list.preview.selection
        theme: list.theme
        partAt: height => list.itemAt(list.width / 2, height)
        onPressed: list.point()
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
        y: list.textBottom - height
        z: 1
        width: list.width
        height: (list.textBottom - list.textTop) * 0.01
        visible: list.preview.isTextHidden
        gradient: Gradient {
            GradientStop { position: 0; color: Qt.alpha(list.theme.window, 0) }
            GradientStop { position: 0.5; color: list.theme.window }
        }
    }

    Keys.onShortcutOverride: event => event.accepted = event.matches(StandardKey.Copy)
                                                       || event.matches(StandardKey.SelectAll)
    Keys.onPressed: event => {
        event.accepted = true
        if (event.matches(StandardKey.Copy)) preview.copySelection()
        else if (event.matches(StandardKey.SelectAll)) preview.selectAll()
        else if (event.matches(StandardKey.MoveToNextPage)) scrollBy(height * 0.9)
        else if (event.matches(StandardKey.MoveToPreviousPage)) scrollBy(-height * 0.9)
        else if (event.matches(StandardKey.MoveToStartOfLine)) positionViewAtBeginning()
        else if (event.matches(StandardKey.MoveToEndOfLine)) positionViewAtEnd()
        else event.accepted = false
    }
}
