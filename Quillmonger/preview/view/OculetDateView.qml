import QtQuick
import Quillmonger.Preview
import Quillmonger.Resources

// The forms of a date that was recognised in a text.
OculetPanel {
    id: panel

    required property PreviewModel preview

    objectName: "OculetDateView"

    OculetRows {
        width: parent.width
        rows: panel.preview.dateRows
        theme: panel.theme
        selectedValue: panel.preview.selectedValue
        onSelected: value => panel.preview.selectedValue = value
        onCopied: value => panel.preview.copy(value)
    }
}
