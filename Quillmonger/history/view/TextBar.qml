import QtQuick
import Quillmonger.History
import Quillmonger.Resources

// The text of a row and, while Option is held, what a paste would do to its formatting.
Item {
    id: bar

    required property var attributedLine
    required property bool isSelected
    required property bool isFileURL
    required property bool isOptionPressed
    required property HistorySettings settings
    required property Theme theme

    implicitHeight: theme.rowMetrics.height + (hint.visible ? hint.height : 0)

    HighlightedText {
        objectName: "ClipboardItemText"
        y: bar.theme.rowMetrics.ascent - baselineOffset
        width: parent.width
        attributedLine: bar.attributedLine
        isSelected: bar.isSelected
        truncationMode: bar.settings.truncationMode
        theme: bar.theme
    }

    Text {
        id: hint
        objectName: bar.settings.alwaysPasteWithoutFormatting ? "PasteWithFormattingText" : "PasteWithoutFormattingText"
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        visible: bar.isOptionPressed && !bar.isFileURL
        renderType: Text.NativeRendering
        elide: Text.ElideRight
        font.pixelSize: bar.theme.hintFontSize
        color: bar.isSelected ? bar.theme.selectedSecondary : bar.theme.secondary
        text: bar.settings.alwaysPasteWithoutFormatting ? qsTrId("paste_with_formatting_text")
                                                        : qsTrId("paste_without_formatting_text")
    }
}
