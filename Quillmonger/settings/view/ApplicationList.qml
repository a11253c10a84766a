import QtQuick
import Quillmonger.Resources
import Quillmonger.Settings

// The applications found, or why there are none.
Rectangle {
    id: view

    required property AppPickerModel model
    required property Theme theme

    radius: theme.fieldRadius
    antialiasing: true
    color: theme.field
    border { width: 1; color: theme.border }

    Text {
        objectName: "AppPickerNote"
        anchors.centerIn: parent
        width: parent.width - 40
        visible: view.model.count === 0
        wrapMode: Text.Wrap
        maximumLineCount: 4
        elide: Text.ElideRight
        textFormat: Text.PlainText
        horizontalAlignment: Text.AlignHCenter
        renderType: Text.NativeRendering
        font.pixelSize: view.theme.bodyFontSize
        color: view.theme.tertiary
        text: view.model.isLoading ? qsTrId("app_picker_loading")
            : view.model.searchTerm === "" ? qsTrId("app_picker_empty")
            : qsTrId("app_picker_no_match").arg(view.model.searchTerm)
    }

    ListView {
        id: list
        objectName: "AppPickerList"
        anchors { fill: parent; margins: 1 }
        topMargin: 4
        bottomMargin: 4
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        keyNavigationEnabled: false
        highlightFollowsCurrentItem: false
        reuseItems: true
        currentIndex: view.model.selectedRow
        model: view.model
        Accessible.role: Accessible.List
        Accessible.name: qsTrId("app_picker_title")

        delegate: ApplicationRow {
            width: ListView.view.width
            picker: view.model
            theme: view.theme
            // A row that waits for its next use would be read aloud.
            ListView.onPooled: visible = false
            ListView.onReused: visible = true
        }

        Connections {
            target: view.model
            function onSelectedRowChanged() { list.positionViewAtIndex(view.model.selectedRow, ListView.Contain) }
        }
    }

    ScrollIndicator {
        anchors { top: parent.top; bottom: parent.bottom; right: parent.right; margins: 3; topMargin: 6; bottomMargin: 6 }
        visible: list.visibleArea.heightRatio < 1
        list: list
        theme: view.theme
    }
}
