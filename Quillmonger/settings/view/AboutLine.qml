import QtQuick

// A line of text in the middle.
Text {
    anchors { left: parent.left; right: parent.right; leftMargin: 24; rightMargin: 24 }
    horizontalAlignment: Text.AlignHCenter
    elide: Text.ElideRight
    renderType: Text.NativeRendering
    textFormat: Text.PlainText
}
