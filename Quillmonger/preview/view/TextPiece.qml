import QtQuick
import Quillmonger.Preview
import Quillmonger.Resources

// A part of a text. A selection can go on in the parts before and after it.
TextEdit {
    id: part

    required property int index
    required property string piece

    required property TextSelection selection
    required property Theme theme
    // Gives the part at a height of the list; null where there is none.
    required property var partAt

    function showSelection() {
        select(selection.startIn(index, length), selection.endIn(index, length))
    }

    function extendTo(other: TextPiece, x: real, y: real) {
        selection.extend(other.index, other.positionAt(x, y - other.y))
    }

    function selectWordAt(x: real, y: real) {
        cursorPosition = positionAt(x, y)
        selectWord()
        const start = selectionStart
        const end = selectionEnd
        selection.begin(index, start)
        selection.extend(index, end)
    }

    objectName: "TextPiece"
    text: piece
    textFormat: TextEdit.PlainText
    wrapMode: TextEdit.Wrap
    readOnly: true
    selectByMouse: false
    activeFocusOnPress: false
    persistentSelection: true
    renderType: TextEdit.NativeRendering
    font.pixelSize: theme.previewFontSize
    color: theme.primary
    selectionColor: theme.highlightColor
    selectedTextColor: theme.selectedPrimary
    Accessible.role: Accessible.StaticText
    Accessible.name: text
    Component.onCompleted: {
        directions.apply(textDocument)
        showSelection()
    }

    ParagraphDirections { id: directions }

    Connections {
        target: part.selection
        function onChanged() { part.showSelection() }
    }

    MouseArea {
        anchors.fill: parent
        cursorShape: Qt.IBeamCursor
        preventStealing: true
        onPressed: mouse => part.selection.begin(part.index, part.positionAt(mouse.x, mouse.y))
        onPositionChanged: mouse => part.extendTo(part.partAt(part.y + mouse.y) ?? part, mouse.x, part.y + mouse.y)
        onDoubleClicked: mouse => part.selectWordAt(mouse.x, mouse.y)
    }
}
