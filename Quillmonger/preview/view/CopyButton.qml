import QtQuick
import Quillmonger.Preview
import Quillmonger.Resources

// Copies what stands beside it, and shows for a moment that it did. While the key of its chord is held, the chord stands
// there instead.
SymbolButton {
    id: button

    required property PreviewModel preview
    // Its place among the copy buttons of the pane, from 0.
    required property int number
    // What it copies.
    required property string label

    readonly property bool isCopied: preview.copiedButton === number
    readonly property bool showsKey: preview.showsButtonKeys && !isCopied
    readonly property string key: qsTrId("preview_copy_key").arg(number + 1)

    objectName: "CopyButton"
    text: qsTrId("preview_copy_button") + " " + label
    symbol: isCopied ? "checkmark" : "doc.on.doc"
    symbolSize: showsKey ? 0 : 12
    symbolColor: isCopied ? theme.granted : theme.secondary
    Accessible.description: isCopied ? qsTrId("preview_copied") : key
    onTriggered: preview.pressCopyButton(number)

    Text {
        objectName: "CopyButtonKey"
        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
        visible: button.showsKey
        renderType: Text.NativeRendering
        font.pixelSize: button.theme.hintFontSize
        color: button.theme.tertiary
        text: button.key
        Accessible.ignored: true
    }

    HoverTip {
        text: button.isCopied ? qsTrId("preview_copied") : qsTrId("preview_copy_button_help").arg(button.key)
        theme: button.theme
    }
}
