import QtQuick
import Quillmonger.Resources

// The note while no item is selected.
Column {
    id: note

    required property Theme theme

    objectName: "PreviewEmptyStateView"
    spacing: 20
    bottomPadding: 28
    Accessible.role: Accessible.StaticText
    Accessible.name: text.text

    Symbol {
        anchors.horizontalCenter: parent.horizontalCenter
        name: "doc.text.magnifyingglass"
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
        text: qsTrId("preview_empty_space_text")
        Accessible.ignored: true
    }
}
