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
        hitColor: root.isSelected ? root.theme.selectedPrimary : root.theme.primary
    }

    text: attributed.text
    textFormat: attributed.isPlain ? Text.PlainText : Text.StyledText
    renderType: Text.NativeRendering
    font.pixelSize: theme.rowFontSize
    color: attributed.isPlain ? attributed.hitColor : isSelected ? theme.selectedSecondary : theme.secondary
    maximumLineCount: 1
    horizontalAlignment: Text.AlignLeft
    elide: truncationMode === HistorySettings.Head ? Text.ElideLeft
         : truncationMode === HistorySettings.Middle ? Text.ElideMiddle : Text.ElideRight
    Accessible.ignored: true
}
