import QtQuick
import Quillmonger.Resources

// A paragraph in the middle of a screen.
Text {
    required property Theme theme

    horizontalAlignment: Text.AlignHCenter
    wrapMode: Text.WordWrap
    textFormat: Text.PlainText
    renderType: Text.NativeRendering
    font.pixelSize: theme.bodyFontSize
    lineHeight: 1.15
    color: theme.secondary
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
