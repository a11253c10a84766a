import QtQuick
import Quillmonger.Preview
import Quillmonger.Resources

// Copies a JSON text in another form. The text itself stands below.
OculetPanel {
    id: panel

    required property PreviewModel preview

    component JsonRow: Item {
        id: row

        required property string text
        required property Theme theme
        signal triggered()

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
            text: qsTrId("preview_copy_button") + " " + row.text
            theme: row.theme
            onTriggered: row.triggered()
        }
    }

    objectName: "OculetJsonView"

    JsonRow {
        text: qsTrId("preview_oculet_beautify_json")
        theme: panel.theme
        onTriggered: panel.preview.copyBeautifiedJson()
    }

    JsonRow {
        text: qsTrId("preview_oculet_minify_json")
        theme: panel.theme
        onTriggered: panel.preview.copyMinifiedJson()
    }
}
