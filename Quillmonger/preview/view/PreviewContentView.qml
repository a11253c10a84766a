import QtQuick
import Quillmonger.Preview
import Quillmonger.Resources

// An item in full: its picture, what was recognised in its text, and the text.
Item {
    id: content

    required property PreviewModel preview
    required property Theme theme

    // A taller picture is shown whole within it: a strip would be as long as a book.
    readonly property real tallestPicture: 8 * height

    component Panel: Item {
        property alias active: loader.active
        property alias view: loader.sourceComponent

        width: parent.width
        height: loader.height + loader.y
        visible: active

        Loader {
            id: loader
            y: 6
            width: parent.width
        }
    }

    FadingTextView {
        id: text
        anchors.fill: parent
        preview: content.preview
        theme: content.theme

        header: Column {
            x: content.theme.previewMargin
            width: ListView.view.width - 2 * content.theme.previewMargin
            topPadding: content.theme.previewMargin
            spacing: content.theme.previewMargin
            bottomPadding: hasPanels || picture.visible || notice.visible ? content.theme.previewMargin : 0

            readonly property bool hasPanels: date.active || color.active || json.active

            PreviewPicture {
                id: picture
                objectName: "PreviewPicture"
                anchors.horizontalCenter: parent.horizontalCenter
                visible: content.preview.pictureAspect > 0
                width: visible ? Math.min(parent.width, content.tallestPicture / content.preview.pictureAspect) : 0
                height: width * content.preview.pictureAspect
                picture: content.preview.picture
                Accessible.role: Accessible.Graphic
                Accessible.name: qsTrId("accessibility_picture")
            }

            UnreadablePictureNotice {
                id: notice
                anchors.horizontalCenter: parent.horizontalCenter
                visible: content.preview.isPictureUnreadable
                theme: content.theme
            }

            Panel {
                id: date
                active: content.preview.dateRows.length > 0
                view: OculetDateView { preview: content.preview; theme: content.theme }
            }

            Panel {
                id: color
                active: content.preview.colorRows.length > 0
                view: OculetColorView { preview: content.preview; theme: content.theme }
            }

            Panel {
                id: json
                active: content.preview.hasJson
                view: OculetJsonView { preview: content.preview; theme: content.theme }
            }
        }

        Connections {
            target: content.preview
            function onItemChanged() { text.positionViewAtBeginning() }
        }
    }

    ScrollIndicator {
        objectName: "PreviewScrollIndicator"
        anchors { top: parent.top; bottom: parent.bottom; right: parent.right; margins: 3; topMargin: 8 }
        visible: content.preview.showScrollbar && text.visibleArea.heightRatio < 1
        list: text
        theme: content.theme
    }
}
