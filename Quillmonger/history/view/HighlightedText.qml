import QtQuick
import Quillmonger.Resources

// One line with the search hit in bold and the rest dimmed, cut where the setting says.
Text {
    id: line

    required property string string
    required property var matches
    required property bool isSelected
    required property int truncationMode
    required property Theme theme

    readonly property AttributedLine attributed: AttributedLine {
        string: line.string
        matches: line.matches
        dimmedColor: line.isSelected ? line.theme.selectedSecondary : line.theme.secondary
    }

    text: attributed.markup
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
