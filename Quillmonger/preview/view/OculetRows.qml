import QtQuick
import Quillmonger.Preview
import Quillmonger.Resources

// Rows of a label, a value that can be selected, and a button that copies it. The labels are as wide as the widest.
Column {
    id: column

    // Of "label", a text's key, and "value".
    required property var rows
    required property PreviewModel preview
    // The number of its first copy button.
    required property int firstButton
    required property Theme theme
    property int labelSpacing: 8

    readonly property real labelMaxWidth: Math.min(labels.implicitWidth, width * 0.4)

    spacing: 10

    // Only to be measured.
    Column {
        id: labels
        visible: false

        Repeater {
            model: column.rows

            Text {
                required property var modelData

                font.pixelSize: column.theme.previewFontSize
                text: qsTrId(modelData.label)
            }
        }
    }

    Repeater {
        model: column.rows

        Item {
            id: row

            required property var modelData
            required property int index

            width: column.width
            height: Math.max(value.height, copy.height)

            Text {
                id: label
                objectName: "OculetLabel"
                anchors { left: parent.left; baseline: value.baseline }
                width: column.labelMaxWidth
                elide: Text.ElideRight
                renderType: Text.NativeRendering
                font.pixelSize: column.theme.previewFontSize
                color: column.theme.secondary
                text: qsTrId(row.modelData.label)
            }

            TextEdit {
                id: value
                objectName: "OculetValue"
                anchors {
                    left: label.right; leftMargin: column.labelSpacing
                    right: copy.left; rightMargin: 4
                    verticalCenter: parent.verticalCenter
                }
                // As the layout, not as the text, runs.
                horizontalAlignment: TextEdit.AlignLeft
                readOnly: true
                selectByMouse: true
                activeFocusOnPress: false
                persistentSelection: true
                wrapMode: TextEdit.Wrap
                renderType: TextEdit.NativeRendering
                font.pixelSize: column.theme.previewFontSize
                color: column.theme.primary
                selectionColor: column.theme.selectionColor
                selectedTextColor: column.theme.selectedPrimary
                text: row.modelData.value
                Accessible.role: Accessible.StaticText
                Accessible.name: label.text + " " + text
                onSelectedTextChanged: if (selectedText !== "") column.preview.selectedValue = selectedText

                Connections {
                    target: column.preview
                    function onSelectedValueChanged() {
                        if (value.selectedText !== column.preview.selectedValue) value.deselect()
                    }
                }
            }

            CopyButton {
                id: copy
                anchors { right: parent.right; verticalCenter: parent.verticalCenter }
                preview: column.preview
                number: column.firstButton + row.index
                label: label.text
                theme: column.theme
            }
        }
    }
}
