import QtQuick
import Quillmonger.Resources

// Stands in for a picture that can't be shown.
Column {
    id: notice

    required property Theme theme

    objectName: "UnreadablePictureNotice"
    width: 256
    topPadding: 40
    bottomPadding: 20
    spacing: 20
    Accessible.role: Accessible.StaticText
    Accessible.name: text.text

    Symbol {
        anchors.horizontalCenter: parent.horizontalCenter
        name: "photo"
        color: notice.theme.secondary
        size: 40
    }

    Text {
        id: text
        width: parent.width
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.WordWrap
        renderType: Text.NativeRendering
        font.pixelSize: notice.theme.rowFontSize
        color: notice.theme.secondary
        text: qsTrId("preview_picture_unreadable")
        Accessible.ignored: true
    }
}
