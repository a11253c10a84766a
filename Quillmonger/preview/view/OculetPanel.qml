import QtQuick
import Quillmonger.Resources

// The frame of what was recognised in a text, around rows that its user puts in.
Item {
    id: panel

    required property Theme theme
    default property alias rows: column.data
    readonly property int padding: theme.previewMargin

    implicitHeight: column.implicitHeight + 2 * padding
    Accessible.role: Accessible.Grouping
    Accessible.name: qsTrId("preview_oculet_tooltip")

    RectangleWithSymbol {
        anchors.fill: parent
        symbolName: "wand.and.stars"
        toolTip: qsTrId("preview_oculet_tooltip")
        color: panel.theme.accentColor
        symbolColor: panel.theme.primary
        background: panel.theme.window
        cornerRadius: panel.theme.panelRadius
        theme: panel.theme
    }

    Column {
        id: column
        anchors { fill: parent; margins: panel.padding }
        spacing: 10
    }
}
