import QtQuick
import Quillmonger.Preview
import Quillmonger.Resources

// The forms of a colour that was recognised in a text.
OculetPanel {
    id: panel

    required property PreviewModel preview

    objectName: "OculetColorView"

    OculetRows {
        width: parent.width
        rows: panel.preview.colorRows
        preview: panel.preview
        firstButton: panel.preview.dateRows.length
        theme: panel.theme
    }
}
