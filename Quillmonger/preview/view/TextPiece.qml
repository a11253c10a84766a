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

    function showSelection() {
        select(selection.startIn(index, length), selection.endIn(index, length))
    }

    function selectFrom(x: real, y: real) {
        selection.begin(index, positionAt(x, y))
    }

    function selectTo(x: real, y: real) {
        selection.extend(index, positionAt(x, y))
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
    selectionColor: theme.selectionColor
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
}
