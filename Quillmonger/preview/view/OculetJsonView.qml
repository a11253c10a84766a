import QtQuick
import Quillmonger.Preview
import Quillmonger.Resources

// Copies a JSON text in another form. The text itself stands below.
OculetPanel {
    id: panel

    required property PreviewModel preview
    readonly property int firstButton: preview.dateRows.length + preview.colorRows.length

    component JsonRow: Item {
        id: row

        required property string text
        required property PreviewModel preview
        required property int number
        required property Theme theme

        width: parent.width
        height: Math.max(label.height, copy.height)

        Text {
            id: label
            objectName: "OculetLabel"
            anchors { left: parent.left; right: copy.left; rightMargin: 8; verticalCenter: parent.verticalCenter }
            wrapMode: Text.Wrap
            renderType: Text.NativeRendering
            font.pixelSize: row.theme.previewFontSize
            color: row.theme.primary
            text: row.text
        }

        CopyButton {
            id: copy
            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            preview: row.preview
            number: row.number
            label: row.text
            theme: row.theme
        }
    }

    objectName: "OculetJsonView"

    JsonRow {
        text: qsTrId("preview_oculet_beautify_json")
        preview: panel.preview
        number: panel.firstButton
        theme: panel.theme
    }

    JsonRow {
        text: qsTrId("preview_oculet_minify_json")
        preview: panel.preview
        number: panel.firstButton + 1
        theme: panel.theme
    }
}
