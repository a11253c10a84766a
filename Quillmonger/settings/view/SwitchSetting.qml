import QtQuick
import Quillmonger.Resources
import Quillmonger.Settings

// A setting that is on or off: its title, what it means, and the switch.
Item {
    id: setting

    required property ToggleModel toggle
    required property Theme theme
    property string note: ""
    property alias switchName: control.objectName

    implicitHeight: words.implicitHeight

    Column {
        id: words
        anchors { left: parent.left; right: control.left; rightMargin: 16 }
        spacing: 3

        TapHandler { onTapped: setting.toggle.flip() }

        Text {
            width: parent.width
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignLeft
            renderType: Text.NativeRendering
            font.pixelSize: setting.theme.bodyFontSize
            color: setting.theme.primary
            text: setting.toggle.label
            Accessible.ignored: true
        }

        Text {
            width: parent.width
            visible: text !== ""
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignLeft
            renderType: Text.NativeRendering
            font.pixelSize: setting.theme.hintFontSize
            color: setting.theme.secondary
            text: setting.note
            Accessible.ignored: true
        }
    }

    Switch {
        id: control
        anchors { right: parent.right; top: parent.top }
        text: setting.toggle.label
        note: setting.note
        isOn: setting.toggle.isOn
        theme: setting.theme
        onToggled: setting.toggle.flip()
    }
}
