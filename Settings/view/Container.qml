import QtQuick

// A pane's sections one below the other, with one label column, which is as wide as the widest label. A label that
// would take more than its share of the pane goes over several lines. Controls that need more room beside the labels
// take it from the margins, and where those would become narrow the pane is wider.
Item {
    id: container

    required property int contentWidth
    default property alias sections: column.data
    property int margin: 30
    readonly property int leastMargin: 20

    anchors.horizontalCenter: parent ? parent.horizontalCenter : undefined
    implicitWidth: Math.max(contentWidth + margin * 2, column.width + leastMargin * 2)
    implicitHeight: column.implicitHeight + margin * 2 - 8
    Accessible.role: Accessible.Pane

    Column {
        id: column

        // Read by each section.
        readonly property real labelColumnWidth: {
            let widest = 0
            for (let index = 0; index < children.length; ++index)
                widest = Math.max(widest, children[index].labelWidth ?? 0)
            return Math.min(Math.ceil(widest), Math.round(container.contentWidth * 0.32))
        }

        anchors { horizontalCenter: parent.horizontalCenter; top: parent.top; topMargin: container.margin - 4 }
        width: {
            let widest = container.contentWidth
            for (let index = 0; index < children.length; ++index)
                widest = Math.max(widest, children[index].leastWidth ?? 0)
            return Math.ceil(widest)
        }
        spacing: 18
    }
}
