import QtQuick
import Quillmonger.Resources

// Says that a text goes on, and where that can be changed.
Column {
    id: notice

    required property Theme theme
    signal settingsRequested()

    objectName: "HiddenTextNotice"
    width: 256

    Symbol {
        anchors.horizontalCenter: parent.horizontalCenter
        name: "eye.slash"
        color: notice.theme.secondary
        size: 40
    }

    Item { width: 1; height: 20 }

    Text {
        width: parent.width
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.WordWrap
        renderType: Text.NativeRendering
        font.pixelSize: notice.theme.rowFontSize
        color: notice.theme.secondary
        text: qsTrId("preview_text_hidden_text")
    }

    Item { width: 1; height: 12 }

    Flow {
        readonly property real natural: question.implicitWidth + spacing + link.implicitWidth

        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(natural, parent.width)
        spacing: 4

        Text {
            id: question
            width: Math.min(implicitWidth, parent.width)
            wrapMode: Text.WordWrap
            renderType: Text.NativeRendering
            font.pixelSize: notice.theme.hintFontSize
            color: notice.theme.secondary
            text: qsTrId("preview_text_hidden_disable_button")
        }

        Text {
            id: link
            objectName: "AppearanceSettingsButton"
            width: Math.min(implicitWidth, parent.width)
            wrapMode: Text.WordWrap
            renderType: Text.NativeRendering
            font { pixelSize: notice.theme.hintFontSize; underline: hover.hovered }
            color: notice.theme.accentColor
            text: qsTrId("preview_appearance_settings_button")
            Accessible.role: Accessible.Link
            Accessible.name: text
            Accessible.onPressAction: notice.settingsRequested()

            HoverHandler {
                id: hover
                cursorShape: Qt.PointingHandCursor
            }

            TapHandler { onTapped: notice.settingsRequested() }
        }
    }
}
