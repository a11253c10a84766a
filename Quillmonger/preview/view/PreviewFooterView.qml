import QtQuick
import Quillmonger.History
import Quillmonger.Preview
import Quillmonger.Resources

// The item's facts: where it comes from and how large it is, how old it is and how often it was pasted.
Item {
    id: footer

    required property PreviewModel preview
    required property Theme theme

    component Fact: Text {
        required property Theme theme

        textFormat: Text.PlainText
        renderType: Text.NativeRendering
        elide: Text.ElideRight
        font.pixelSize: theme.hintFontSize
        color: theme.secondary
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    objectName: "PreviewFooter"
    implicitHeight: 58

    Rectangle {
        objectName: "PreviewFooterRule"
        anchors {
            left: parent.left; right: parent.right; top: parent.top
            leftMargin: footer.theme.previewMargin; rightMargin: footer.theme.previewMargin
        }
        height: 1
        opacity: 0.25
        color: footer.theme.secondary
    }

    AppIcon {
        id: icon
        anchors { left: parent.left; leftMargin: footer.theme.previewMargin; verticalCenter: parent.verticalCenter }
        visible: path !== ""
        path: footer.preview.iconPath
        toolTip: footer.preview.appName
        theme: footer.theme
    }

    Column {
        anchors {
            left: icon.right; leftMargin: icon.visible ? 10 : 0
            right: times.left; rightMargin: 12
            verticalCenter: parent.verticalCenter
        }
        spacing: 2

        Text {
            objectName: "PreviewAppName"
            width: parent.width
            visible: text !== ""
            textFormat: Text.PlainText
            renderType: Text.NativeRendering
            elide: Text.ElideRight
            horizontalAlignment: Text.AlignLeft
            font.pixelSize: footer.theme.previewFontSize
            color: footer.theme.primary
            text: footer.preview.appName
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }

        Fact {
            objectName: "PreviewDetails"
            width: parent.width
            horizontalAlignment: Text.AlignLeft
            theme: footer.theme
            text: footer.preview.details
        }
    }

    Column {
        id: times
        readonly property real natural: Math.max(date.implicitWidth, count.implicitWidth)

        anchors { right: parent.right; rightMargin: footer.theme.previewMargin; verticalCenter: parent.verticalCenter }
        width: Math.min(natural, footer.width * 0.45)
        spacing: 2

        Text {
            id: date
            objectName: "PreviewRelativeDate"
            width: parent.width
            textFormat: Text.PlainText
            renderType: Text.NativeRendering
            elide: Text.ElideRight
            horizontalAlignment: Text.AlignRight
            font.pixelSize: footer.theme.previewFontSize
            color: footer.theme.primary
            text: footer.preview.relativeDate
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }

        Fact {
            id: count
            objectName: "PreviewPasteCount"
            width: parent.width
            horizontalAlignment: Text.AlignRight
            theme: footer.theme
            text: footer.preview.pasteCount
        }
    }
}
