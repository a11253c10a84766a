import QtQuick
import Quillmonger.Resources
import Quillmonger.Settings

// A setting that is on or off: the switch, its title unless the section says it, and what it means.
Item {
    id: setting

    required property ToggleModel toggle
    required property Theme theme
    property bool isTitled: true
    property string note: ""
    // 0: as wide as there is room.
    property int noteWidth: 0
    property alias switchName: control.objectName

    readonly property real firstLineHeight: control.height
    readonly property int leastWidth: noteWidth

    width: parent ? parent.width : 0
    implicitHeight: column.height

    Column {
        id: column
        width: parent.width
        spacing: 5

        Item {
            width: parent.width
            height: Math.max(control.height, title.y + title.height)

            Switch {
                id: control
                anchors.left: parent.left
                enabled: setting.enabled
                text: setting.toggle.label
                note: setting.note
                isOn: setting.toggle.isOn
                theme: setting.theme
                onToggled: setting.toggle.flip()
            }

            Text {
                id: title
                objectName: "SwitchTitle"
                anchors { left: control.right; leftMargin: 10; right: parent.right }
                y: (control.height - height / Math.max(lineCount, 1)) / 2
                visible: setting.isTitled
                wrapMode: Text.Wrap
                horizontalAlignment: Text.AlignLeft
                renderType: Text.NativeRendering
                textFormat: Text.PlainText
                font.pixelSize: setting.theme.paneFontSize
                color: setting.theme.primary
                opacity: setting.enabled ? 1 : setting.theme.disabledOpacity
                text: setting.toggle.label
                Accessible.ignored: true

                TapHandler { onTapped: setting.toggle.flip() }
            }
        }

        SettingNote {
            theme: setting.theme
            maximumWidth: setting.noteWidth
            text: setting.note
        }
    }
}
