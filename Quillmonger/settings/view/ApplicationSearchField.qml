import QtQuick
import Quillmonger.Resources
import Quillmonger.Settings

// Searches the applications; the keys that choose among them work here too.
FocusScope {
    id: search

    required property AppPickerModel model
    // How many rows Page Up and Page Down move.
    required property int pageSize
    required property Theme theme

    implicitHeight: 38

    Rectangle {
        anchors.fill: parent
        radius: search.theme.fieldRadius
        antialiasing: true
        color: search.theme.field
        border { width: 1; color: search.theme.border }
    }

    Symbol {
        id: icon
        anchors { left: parent.left; leftMargin: 10; verticalCenter: parent.verticalCenter }
        name: "magnifyingglass"
        color: search.theme.secondary
        size: 18
    }

    TextInput {
        id: field
        objectName: "AppPickerSearchField"
        anchors {
            left: icon.right; leftMargin: 8
            right: parent.right; rightMargin: 10
            verticalCenter: parent.verticalCenter
        }
        focus: true
        activeFocusOnTab: true
        clip: true
        selectByMouse: true
        maximumLength: 1000
        horizontalAlignment: Text.AlignLeft
        renderType: Text.NativeRendering
        font.pixelSize: search.theme.rowFontSize
        color: search.theme.primary
        selectionColor: search.theme.selectionColor
        selectedTextColor: search.theme.selectedPrimary
        text: search.model.searchTerm
        onTextEdited: search.model.searchTerm = text
        Keys.onUpPressed: search.model.moveSelection(-1)
        Keys.onDownPressed: search.model.moveSelection(1)
        Keys.onReturnPressed: search.model.choose()
        Keys.onEnterPressed: search.model.choose()
        Keys.onPressed: event => {
            if (event.key === Qt.Key_PageUp) search.model.moveSelection(-search.pageSize)
            if (event.key === Qt.Key_PageDown) search.model.moveSelection(search.pageSize)
            // The toolkit's own paste would wait for the clipboard's owner, however long that takes.
            if (event.matches(StandardKey.Paste)) {
                remove(selectionStart, selectionEnd)
                insert(cursorPosition, search.model.clipboardText())
                search.model.searchTerm = text
                event.accepted = true
            }
        }
        Accessible.role: Accessible.EditableText
        Accessible.name: placeholder.text
        Accessible.searchEdit: true

        MouseArea {
            anchors.fill: parent
            acceptedButtons: Qt.MiddleButton
            cursorShape: Qt.IBeamCursor
        }

        Text {
            id: placeholder
            anchors { left: parent.left; right: parent.right; leftMargin: 2 }
            visible: field.text === "" && field.preeditText === ""
            elide: Text.ElideRight
            horizontalAlignment: Text.AlignLeft
            renderType: Text.NativeRendering
            font: field.font
            color: search.theme.tertiary
            text: qsTrId("app_picker_search")
            Accessible.ignored: true
        }
    }

    FocusRing {
        anchors.margins: 0
        radius: search.theme.fieldRadius
        control: field
        theme: search.theme
    }
}
