import QtQuick
import Quillmonger.Resources
import Quillmonger.Settings

// The list of the ignored applications, and under it the buttons that add one and remove the selected one.
Rectangle {
    id: view

    required property IgnoredAppsModel apps
    required property ContextMenu menu
    required property Theme theme

    height: list.height + bar.height + 1
    radius: theme.fieldRadius
    antialiasing: true
    color: theme.field
    border { width: 1; color: theme.border }

    Text {
        anchors { centerIn: list }
        width: list.width - 40
        visible: list.count === 0
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
        renderType: Text.NativeRendering
        font.pixelSize: view.theme.bodyFontSize
        color: view.theme.tertiary
        text: qsTrId("settings_ignore_apps_empty")
    }

    ListView {
        id: list
        objectName: "IgnoredAppsList"
        // Keys that stay with this list in every window.
        readonly property var ownKeys: [Qt.Key_Up, Qt.Key_Down]
        anchors { left: parent.left; right: parent.right; top: parent.top; leftMargin: 1; rightMargin: 1 }
        height: 200
        topMargin: 4
        bottomMargin: 4
        clip: true
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        keyNavigationEnabled: false
        highlightFollowsCurrentItem: false
        currentIndex: view.apps.selectedRow
        model: view.apps
        Accessible.role: Accessible.List
        Accessible.name: qsTrId("settings_ignore_apps_title")
        Accessible.focusable: true
        Keys.onUpPressed: view.apps.select(Math.max(view.apps.selectedRow - 1, 0))
        Keys.onDownPressed: view.apps.select(Math.min(view.apps.selectedRow + 1, count - 1))
        Keys.onDeletePressed: view.apps.remove(view.apps.selectedRow)
        Keys.onMenuPressed: if (currentItem) currentItem.showMenu(currentItem.width / 2, currentItem.height)
        onCurrentIndexChanged: positionViewAtIndex(currentIndex, ListView.Contain)

        delegate: IgnoredAppRow {
            width: ListView.view.width
            apps: view.apps
            menu: view.menu
            theme: view.theme
        }
    }

    ScrollIndicator {
        anchors { top: list.top; bottom: list.bottom; right: list.right; margins: 2; topMargin: 6; bottomMargin: 6 }
        visible: list.visibleArea.heightRatio < 1
        list: list
        theme: view.theme
    }

    Rectangle {
        id: separator
        anchors { left: parent.left; right: parent.right; top: list.bottom; leftMargin: 1; rightMargin: 1 }
        height: 1
        color: view.theme.separator
    }

    Row {
        id: bar
        anchors { left: parent.left; top: separator.bottom; leftMargin: 6 }
        height: 34
        spacing: 2

        SymbolButton {
            objectName: "AddAppButton"
            anchors.verticalCenter: parent.verticalCenter
            symbol: "plus"
            text: qsTrId("settings_ignore_apps_add")
            theme: view.theme
            onTriggered: view.apps.add()
        }

        SymbolButton {
            objectName: "RemoveAppButton"
            anchors.verticalCenter: parent.verticalCenter
            enabled: view.apps.selectedRow >= 0
            symbol: "minus"
            text: qsTrId("settings_ignore_apps_remove")
            theme: view.theme
            onTriggered: view.apps.remove(view.apps.selectedRow)
        }
    }

    FocusRing {
        anchors.margins: 0
        radius: view.radius
        control: list
        theme: view.theme
    }
}
