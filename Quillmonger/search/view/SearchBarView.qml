import QtQuick
import Quillmonger.Resources
import Quillmonger.Search

FocusScope {
    id: bar

    required property SearchBarModel model
    required property Theme theme

    implicitHeight: theme.searchBarHeight

    Symbol {
        id: icon
        objectName: "SearchIcon"
        anchors { left: parent.left; leftMargin: 18; verticalCenter: parent.verticalCenter }
        name: bar.model.isIncognitoMode ? "IncognitoIcon" : "magnifyingglass"
        color: bar.theme.secondary
        size: bar.theme.symbolSize
    }

    TextInput {
        id: field
        objectName: "SearchTextField"
        anchors {
            left: icon.right; leftMargin: 12
            right: previewButton.left; rightMargin: 12
            verticalCenter: parent.verticalCenter
        }
        focus: true
        clip: true
        selectByMouse: true
        renderType: Text.NativeRendering
        font { pixelSize: bar.theme.searchFontSize; weight: Font.Light }
        color: bar.theme.primary
        selectionColor: bar.theme.highlightColor
        selectedTextColor: bar.theme.selectedPrimary
        text: bar.model.searchTerm
        onTextEdited: bar.model.searchTerm = text
        // The toolkit's own paste would wait for the clipboard's owner, however long that takes.
        Keys.onPressed: event => {
            if (event.matches(StandardKey.Paste)) {
                remove(selectionStart, selectionEnd)
                insert(cursorPosition, bar.model.clipboardText())
                bar.model.searchTerm = text
                event.accepted = true
            }
        }
        Accessible.role: Accessible.EditableText
        Accessible.name: placeholder.text
        Accessible.searchEdit: true

        MouseArea {
            objectName: "NoMiddleClickPaste"
            anchors.fill: parent
            acceptedButtons: Qt.MiddleButton
            cursorShape: Qt.IBeamCursor
        }

        Text {
            id: placeholder
            objectName: "SearchPlaceholder"
            x: 2
            visible: field.text === "" && field.preeditText === ""
            renderType: Text.NativeRendering
            font: field.font
            color: bar.theme.tertiary
            text: qsTrId("search_bar_text_field")
        }
    }

    Item {
        id: previewButton
        objectName: "TogglePreviewButton"
        anchors { right: parent.right; rightMargin: 12; verticalCenter: parent.verticalCenter }
        visible: bar.model.canTogglePreview
        width: visible ? 32 : 0
        height: 32
        Accessible.role: Accessible.Button
        Accessible.name: qsTrId("toggle_preview_pane_button_help")
        Accessible.onPressAction: bar.model.togglePreview()

        Symbol {
            anchors.centerIn: parent
            name: "sidebar.right"
            color: bar.theme.secondary
            size: bar.theme.symbolSize
        }

        TapHandler { onTapped: bar.model.togglePreview() }

        Shortcut {
            sequence: "Ctrl+P"
            // Also while the preview has the keyboard.
            context: Qt.ApplicationShortcut
            enabled: previewButton.visible
            onActivated: bar.model.togglePreview()
        }
    }
}
