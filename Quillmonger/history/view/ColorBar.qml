import QtQuick
import Quillmonger.History
import Quillmonger.Resources

// A sample of an item's colour.
ColorSample {
    id: bar

    required property color sample
    required property bool isSelected
    required property Theme theme

    objectName: "ColorBar"
    implicitWidth: theme.colorBarWidth
    implicitHeight: theme.colorBarHeight
    color: sample
    outline: isSelected ? theme.selectedPrimary : theme.primary
    Accessible.role: Accessible.Graphic
    Accessible.name: qsTrId("accessibility_color").arg(ColorNames.name(sample).toUpperCase())
}
