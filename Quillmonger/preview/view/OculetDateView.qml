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
        preview: panel.preview
        firstButton: 0
        theme: panel.theme
    }
}
