import QtQuick
import Quillmonger.History
import Quillmonger.Resources

// The rows, or a note while there is nothing in the history. A search without a hit shows no rows and no note.
Item {
    id: view

    required property ClipboardViewAdapter clipboard
    required property HistorySettings settings
    required property Theme theme
    required property int cornerRadius

    ClipboardEmptyStateView {
        anchors.centerIn: parent
        visible: view.clipboard.isEmpty
        theme: view.theme
    }

    ListView {
        id: list
        objectName: "HistoryList"
        anchors { fill: parent; margins: view.theme.margin }
        visible: !view.clipboard.isEmpty
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        keyNavigationEnabled: false
        highlightFollowsCurrentItem: false
        reuseItems: true
        currentIndex: -1
        model: view.clipboard.rows
        Accessible.role: Accessible.List
        Accessible.name: qsTrId("accessibility_history")

        delegate: ClipboardItemView {
            width: ListView.view.width
            count: ListView.view.count
            clipboard: view.clipboard
            settings: view.settings
            theme: view.theme
            // A row that waits for its next use would be read aloud.
            ListView.onPooled: visible = false
            ListView.onReused: visible = true
        }

        add: Transition { NumberAnimation { property: "opacity"; from: 0; to: 1; duration: view.theme.rowMotion } }
        displaced: Transition {
            NumberAnimation { property: "y"; duration: view.theme.rowMotion; easing.type: Easing.OutCubic }
            NumberAnimation { property: "opacity"; to: 1; duration: view.theme.rowMotion }
        }

        Connections {
            target: view.clipboard
            function onRevealed(row) { list.positionViewAtIndex(row, ListView.Contain) }
        }
    }

    ScrollIndicator {
        objectName: "ScrollIndicator"
        anchors { top: parent.top; bottom: parent.bottom; right: parent.right; margins: 2; bottomMargin: view.cornerRadius }
        visible: view.settings.showScrollbar && list.visible && list.visibleArea.heightRatio < 1
        list: list
        theme: view.theme
    }
}
