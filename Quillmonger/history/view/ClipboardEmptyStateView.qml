import QtQuick
import Quillmonger.Resources

// The note while nothing has been copied.
Column {
    id: note

    required property Theme theme

    objectName: "EmptyStateView"
    spacing: 14
    Accessible.role: Accessible.StaticText
    Accessible.name: text.text

    Symbol {
        anchors.horizontalCenter: parent.horizontalCenter
        name: "clipboard"
        color: note.theme.secondary
        size: 50
    }

    Text {
        id: text
        width: 256
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.WordWrap
        renderType: Text.NativeRendering
        font.pixelSize: note.theme.noteFontSize
        color: note.theme.secondary
        text: qsTrId("empty_space_text")
        Accessible.ignored: true
    }
}
