import QtQuick
import Quillmonger.History
import Quillmonger.Resources

// The text of a row and, while Option is held, what a paste would do to its formatting.
Column {
    id: bar

    required property var attributedLine
    required property bool isSelected
    required property bool isFileURL
    required property bool isOptionPressed
    required property HistorySettings settings
    required property Theme theme

    HighlightedText {
        objectName: "ClipboardItemText"
        width: parent.width
        attributedLine: bar.attributedLine
        isSelected: bar.isSelected
        truncationMode: bar.settings.truncationMode
        theme: bar.theme
    }

    Text {
        objectName: bar.settings.alwaysPasteWithoutFormatting ? "PasteWithFormattingText" : "PasteWithoutFormattingText"
        width: parent.width
        visible: bar.isOptionPressed && !bar.isFileURL
        renderType: Text.NativeRendering
        elide: Text.ElideRight
        font.pixelSize: bar.theme.hintFontSize
        color: bar.isSelected ? bar.theme.selectedSecondary : bar.theme.secondary
        text: bar.settings.alwaysPasteWithoutFormatting ? qsTrId("paste_with_formatting_text")
                                                        : qsTrId("paste_without_formatting_text")
    }
}
