import QtQuick
import Quillmonger.Resources

// One thing to know: a symbol, a few words in bold, and a sentence.
Item {
    id: step

    required property string symbol
    required property string title
    required property string details
    required property Theme theme

    implicitHeight: words.implicitHeight
    Accessible.role: Accessible.StaticText
    Accessible.name: title + ". " + details

    Symbol {
        id: sign
        anchors { left: parent.left; verticalCenter: parent.verticalCenter }
        name: step.symbol
        color: step.theme.accentColor
        size: 30
    }

    Column {
        id: words
        anchors { left: sign.right; leftMargin: 20; right: parent.right }
        spacing: 3

        Text {
            width: parent.width
            wrapMode: Text.WordWrap
            renderType: Text.NativeRendering
            font { pixelSize: step.theme.rowFontSize; bold: true }
            color: step.theme.primary
            text: step.title
            Accessible.ignored: true
        }

        Text {
            width: parent.width
            wrapMode: Text.WordWrap
            renderType: Text.NativeRendering
            font.pixelSize: step.theme.bodyFontSize
            color: step.theme.secondary
            text: step.details
            Accessible.ignored: true
        }
    }
}
