import QtQuick
import Quillmonger.History
import Quillmonger.Resources

// One row of the history.
Item {
    id: row

    required property int index
    required property string line
    required property var attributedLine
    required property string iconPath
    required property string appName
    required property bool hasOculetResults
    required property var textColor
    required property bool isImage
    required property var imageColor
    required property bool isFileURL

    required property int count
    required property ClipboardViewAdapter clipboard
    required property HistorySettings settings
    required property Theme theme

    readonly property bool isSelected: clipboard.selectedRow === index

    objectName: "ClipboardItem"
    height: theme.rowHeight
    clip: true
    Accessible.role: Accessible.ListItem
    Accessible.name: isImage && line === "" ? qsTrId("accessibility_picture") : line
    Accessible.description: qsTrId("accessibility_row").arg(index + 1).arg(count)
    Accessible.selectable: true
    Accessible.selected: isSelected
    Accessible.onPressAction: clipboard.select(index)

    Rectangle {
        objectName: "RowHighlight"
        anchors.fill: parent
        visible: row.isSelected
        radius: row.theme.rowRadius
        antialiasing: true
        color: row.theme.highlightColor
    }

    AppIcon {
        id: icon
        anchors { left: parent.left; leftMargin: visible ? 6 : 2; verticalCenter: parent.verticalCenter }
        visible: row.settings.showSourceAppIcon && row.iconPath !== ""
        path: row.iconPath
        toolTip: row.appName
        theme: row.theme
    }

    ColorBar {
        anchors { left: words.left; right: words.right; verticalCenter: parent.verticalCenter }
        visible: row.isImage && row.imageColor !== undefined
        withGradient: true
        sample: row.imageColor !== undefined ? row.imageColor : "transparent"
        isSelected: row.isSelected
        theme: row.theme
    }

    TextBar {
        id: words
        anchors {
            left: icon.right; leftMargin: 8
            right: marks.left; rightMargin: 8
            verticalCenter: parent.verticalCenter
        }
        visible: !row.isImage || row.imageColor === undefined
        attributedLine: row.attributedLine
        isSelected: row.isSelected
        isFileURL: row.isFileURL
        isOptionPressed: row.clipboard.isOptionPressed
        settings: row.settings
        theme: row.theme
    }

    Row {
        id: marks
        anchors { right: parent.right; rightMargin: 8; verticalCenter: parent.verticalCenter }
        spacing: 5

        ColorBar {
            anchors.verticalCenter: parent.verticalCenter
            visible: row.settings.showColorIndicator && words.visible && row.textColor !== undefined
            sample: row.textColor !== undefined ? row.textColor : "transparent"
            isSelected: row.isSelected
            theme: row.theme
        }

        ContentTypeIndicators {
            anchors.verticalCenter: parent.verticalCenter
            visible: row.settings.showContentTypeIndicators
                     && (row.hasOculetResults || row.isImage || row.isFileURL)
            hasOculetResults: row.hasOculetResults
            isImage: row.isImage
            isFileURL: row.isFileURL
            isSelected: row.isSelected
            theme: row.theme
        }

        HotKeyIcon {
            anchors.verticalCenter: parent.verticalCenter
            visible: row.settings.showKeyboardShortcuts
            index: row.index
            isSelected: row.isSelected
            theme: row.theme
        }
    }

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.LeftButton
        onClicked: row.clipboard.select(row.index)
        onDoubleClicked: row.clipboard.paste(row.index)
    }
}
