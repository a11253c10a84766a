import QtQuick
import Quillmonger.Resources

// What the two ends of the slider above it are called.
Item {
    id: ends

    required property string lower
    required property string upper
    required property Theme theme

    implicitHeight: Math.max(lowerEnd.height, upperEnd.height)

    SettingNote {
        id: lowerEnd
        width: Math.min(implicitWidth, parent.width / 2)
        theme: ends.theme
        text: ends.lower
    }

    SettingNote {
        id: upperEnd
        anchors { left: undefined; right: parent.right }
        width: Math.min(implicitWidth, parent.width / 2)
        horizontalAlignment: Text.AlignRight
        theme: ends.theme
        text: ends.upper
    }
}
