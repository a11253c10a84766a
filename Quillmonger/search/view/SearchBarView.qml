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
        Accessible.role: Accessible.Graphic
        Accessible.name: bar.model.isIncognitoMode ? qsTrId("accessibility_incognito") : ""
        Accessible.ignored: !bar.model.isIncognitoMode
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
        horizontalAlignment: TextInput.AlignLeft
        renderType: Text.NativeRendering
        font { pixelSize: bar.theme.searchFontSize; weight: Font.Light }
        color: bar.theme.primary
        selectionColor: bar.theme.selectionColor
        selectedTextColor: bar.theme.selectedPrimary
        text: bar.model.searchTerm
        onTextEdited: bar.model.searchTerm = text

        // The toolkit's own paste would wait for the clipboard's owner, however long that takes.
        function pasteText() {
            remove(selectionStart, selectionEnd)
            insert(cursorPosition, bar.model.clipboardText())
            bar.model.searchTerm = text
        }

        // What the field has no use for is meant for the preview.
        Keys.onPressed: event => {
            event.accepted = true
            if (event.matches(StandardKey.Paste)) pasteText()
            else if (event.matches(StandardKey.Copy)) event.accepted = bar.model.copyFromPreview()
            else if (event.matches(StandardKey.SelectAll) && text === "") bar.model.selectAllOfPreview()
            else if (event.matches(StandardKey.MoveToNextPage)) bar.model.scrollPreview(1)
            else if (event.matches(StandardKey.MoveToPreviousPage)) bar.model.scrollPreview(-1)
            else event.accepted = false
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
            anchors { left: parent.left; leftMargin: 2 }
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
        width: 32
        height: 32
        Accessible.role: Accessible.Button
        Accessible.name: qsTrId("toggle_preview_pane_button_help")
        Accessible.onPressAction: bar.model.togglePreview()

        Rectangle {
            anchors.fill: parent
            radius: bar.theme.rowRadius
            antialiasing: true
            color: hover.hovered ? bar.theme.separator : "transparent"
        }

        Symbol {
            anchors.centerIn: parent
            name: "sidebar.right"
            color: bar.theme.secondary
            size: bar.theme.symbolSize
        }

        HoverHandler { id: hover }

        HoverTip {
            text: qsTrId("toggle_preview_pane_button_help")
            theme: bar.theme
        }

        TapHandler { onTapped: bar.model.togglePreview() }

        Shortcut {
            sequence: "Ctrl+P"
            onActivated: bar.model.togglePreview()
        }
    }
}
