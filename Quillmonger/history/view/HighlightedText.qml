import QtQuick
import Quillmonger.History
import Quillmonger.Resources

// One line with the search hit in bold and the rest dimmed, cut where the setting says.
Text {
    id: root

    required property var attributedLine
    required property bool isSelected
    required property int truncationMode
    required property Theme theme

    readonly property AttributedLine attributed: AttributedLine {
        line: root.attributedLine
        dimmedColor: root.isSelected ? root.theme.selectedSecondary : root.theme.secondary
    }

    text: attributed.text
    textFormat: attributed.isPlain ? Text.PlainText : Text.StyledText
    renderType: Text.NativeRendering
    font.pixelSize: theme.rowFontSize
    color: isSelected ? theme.selectedPrimary : theme.primary
    maximumLineCount: 1
    horizontalAlignment: Text.AlignLeft
    elide: truncationMode === HistorySettings.Head ? Text.ElideLeft
         : truncationMode === HistorySettings.Middle ? Text.ElideMiddle : Text.ElideRight
    Accessible.ignored: true
}
