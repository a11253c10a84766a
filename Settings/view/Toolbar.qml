import QtQuick
import Settings

// The choice of a pane. It is one stop for the Tab key; the arrow keys go from pane to pane.
FocusScope {
    id: toolbar

    required property SettingsModel model

    function move(by: int) {
        const direction = LayoutMirroring.enabled ? -by : by
        toolbar.model.choose(Math.min(Math.max(toolbar.model.selectedTab + direction, 0), toolbar.model.items.length - 1))
    }

    objectName: "SettingsToolbar"
    implicitWidth: (model.isSegmented ? control.width : items.width) + 24
    implicitHeight: 66
    activeFocusOnTab: true
    Keys.onLeftPressed: move(-1)
    Keys.onRightPressed: move(1)
    Accessible.role: Accessible.PageTabList
    Accessible.focusable: true

    Row {
        id: items
        anchors.centerIn: parent
        visible: !toolbar.model.isSegmented
        spacing: 4

        Repeater {
            model: toolbar.model.isSegmented ? [] : toolbar.model.items

            ToolbarItem {
                model: toolbar.model
                hasKeyboard: toolbar.activeFocus
            }
        }
    }

    Loader {
        id: control
        anchors.centerIn: parent
        active: toolbar.model.isSegmented
        sourceComponent: SegmentedControl {
            model: toolbar.model
            hasKeyboard: toolbar.activeFocus
        }
    }

    Rectangle {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        height: 1
        color: toolbar.palette.mid
    }
}
