import QtQuick
import Quillmonger.Resources

// A sample of a colour that a text names.
Rectangle {
    id: bar

    required property color sample
    required property bool isSelected
    required property Theme theme

    objectName: "ColorBar"
    implicitWidth: theme.colorBarWidth
    implicitHeight: theme.colorBarHeight
    radius: height / 2
    antialiasing: true
    color: sample
    border { width: 1; color: isSelected ? theme.selectedPrimary : theme.primary }
    Accessible.role: Accessible.Graphic
    Accessible.name: qsTrId("accessibility_color").arg(sample.toString().toUpperCase())
}
