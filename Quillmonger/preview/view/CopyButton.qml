import QtQuick
import Quillmonger.Resources

// Copies what stands beside it.
SymbolButton {
    id: button

    objectName: "CopyButton"
    symbol: "doc.on.doc"
    symbolSize: 12
    symbolColor: theme.secondary

    HoverTip {
        text: qsTrId("preview_copy_button")
        theme: button.theme
    }
}
