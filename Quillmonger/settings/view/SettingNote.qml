import QtQuick
import Quillmonger.Resources

// A small text that explains the control above it.
Text {
    required property Theme theme
    // 0: as wide as there is room.
    property int maximumWidth: 0

    anchors.left: parent ? parent.left : undefined
    width: maximumWidth > 0 ? Math.min(maximumWidth, parent.width) : parent.width
    visible: text !== ""
    wrapMode: Text.Wrap
    horizontalAlignment: Text.AlignLeft
    renderType: Text.NativeRendering
    textFormat: Text.PlainText
    font.pixelSize: theme.hintFontSize
    color: theme.secondary
    Accessible.ignored: true
}
