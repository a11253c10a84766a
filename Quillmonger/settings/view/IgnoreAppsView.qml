import QtQuick
import Quillmonger.Resources
import Quillmonger.Settings

// The list of the ignored applications, and under it the buttons that add one and remove the selected one.
Rectangle {
    id: view

    required property IgnoredAppsModel apps
    required property ContextMenu menu
    required property Theme theme

    height: keyboard.height + bar.height + 1
    radius: theme.fieldRadius
    antialiasing: true
    color: theme.field
    border { width: 1; color: theme.border }

    Text {
        anchors { centerIn: keyboard }
        width: keyboard.width - 40
        visible: list.count === 0
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
        renderType: Text.NativeRendering
        font.pixelSize: view.theme.bodyFontSize
        color: view.theme.tertiary
        text: qsTrId("settings_ignore_apps_empty")
    }

    // Has the keyboard instead of the list, which would hand it on to its rows.
    Item {
        id: keyboard
        objectName: "IgnoredAppsList"
        // Keys that stay with this control in every window.
        readonly property var ownKeys: [Qt.Key_Up, Qt.Key_Down]
        anchors { left: parent.left; right: parent.right; top: parent.top; leftMargin: 1; rightMargin: 1 }
        height: 200
        activeFocusOnTab: true
        Accessible.role: Accessible.List
        Accessible.name: qsTrId("settings_ignore_apps_title")
        Accessible.focusable: true
        Keys.onUpPressed: view.apps.select(Math.max(view.apps.selectedRow - 1, 0))
        Keys.onDownPressed: view.apps.select(Math.min(view.apps.selectedRow + 1, list.count - 1))
        Keys.onDeletePressed: view.apps.remove(view.apps.selectedRow)
        Keys.onMenuPressed: if (list.currentItem) list.currentItem.showMenu(width / 2, list.currentItem.height)

        ListView {
            id: list
            anchors.fill: parent
            topMargin: 4
            bottomMargin: 4
            clip: true
            boundsBehavior: Flickable.StopAtBounds
            keyNavigationEnabled: false
            highlightFollowsCurrentItem: false
            currentIndex: view.apps.selectedRow
            model: view.apps
            onCurrentIndexChanged: positionViewAtIndex(currentIndex, ListView.Contain)

            delegate: IgnoredAppRow {
                width: ListView.view.width
                apps: view.apps
                focusHolder: keyboard
                menu: view.menu
                theme: view.theme
            }
        }
    }

    ScrollIndicator {
        anchors { top: keyboard.top; bottom: keyboard.bottom; right: keyboard.right; margins: 2; topMargin: 6; bottomMargin: 6 }
        visible: list.visibleArea.heightRatio < 1
        list: list
        theme: view.theme
    }

    Rectangle {
        id: separator
        anchors { left: parent.left; right: parent.right; top: keyboard.bottom; leftMargin: 1; rightMargin: 1 }
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
        control: keyboard
        theme: view.theme
    }
}
