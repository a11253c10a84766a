import QtQuick

// A line of a container: its label at the end of the label column, and its controls beside it.
Item {
    id: section

    enum Alignment { Top, Center }

    property string label: ""
    default property alias content: controls.data
    property bool bottomDivider: false
    property int verticalAlignment: Section.Alignment.Top

    // Of the label column, which is as wide as the widest label of all sections.
    readonly property real maximumWidth: parent ? parent.labelColumnWidth : 0
    // The room that the label would like to have.
    readonly property alias labelWidth: title.implicitWidth
    // Between the label column and the controls.
    readonly property int gap: maximumWidth > 0 ? 12 : 0
    // What is left beside the label column.
    readonly property alias contentWidth: controls.width
    // The room that the controls can't do without, beside the label column. A control says its own as `leastWidth`.
    readonly property real leastWidth: {
        let widest = 0
        for (let index = 0; index < controls.children.length; ++index)
            widest = Math.max(widest, controls.children[index].leastWidth ?? 0)
        return widest > 0 ? maximumWidth + gap + widest : 0
    }
    readonly property bool isCentered: verticalAlignment === Section.Alignment.Center

    readonly property int linesHeight: Math.max(title.height, controls.implicitHeight)

    width: parent ? parent.width : 0
    implicitHeight: linesHeight + (bottomDivider ? 33 : 0)
    Accessible.role: Accessible.Grouping
    Accessible.name: label

    Text {
        id: title
        objectName: "SectionLabel"
        anchors.left: parent.left
        y: section.isCentered ? (section.linesHeight - height) / 2 : Math.max(firstLine.middle - firstLine.height / 2, 0)
        width: section.maximumWidth
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignRight
        renderType: Text.NativeRendering
        textFormat: Text.PlainText
        font.pixelSize: 14
        color: section.palette.windowText
        text: section.label
        Accessible.ignored: true
    }

    // The first line of the label stands beside the first control.
    QtObject {
        id: firstLine
        readonly property real height: title.lineCount > 0 ? title.height / title.lineCount : 0
        readonly property real middle: controls.visibleChildren.length > 0
            ? (controls.visibleChildren[0].firstLineHeight ?? controls.visibleChildren[0].height) / 2 : 0
    }

    Column {
        id: controls
        anchors { left: title.right; leftMargin: section.gap; right: parent.right }
        spacing: 10
        y: section.isCentered ? (section.linesHeight - height) / 2 : 0
    }

    Rectangle {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; bottomMargin: 16 }
        visible: section.bottomDivider
        height: 1
        color: section.palette.mid
    }
}
