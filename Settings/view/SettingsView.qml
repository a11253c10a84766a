import QtQuick
import Settings

// The toolbar, and below it the place of the panes. What doesn't fit on the screen is scrolled. The colours are those
// of the palette, which whoever loads it sets.
FocusScope {
    id: view

    required property SettingsModel model

    readonly property real toolbarWidth: toolbar.visible ? toolbar.implicitWidth : 0
    readonly property real toolbarHeight: toolbar.height
    readonly property Item focusItem: Window.activeFocusItem

    // The next pane, or the one before.
    function step(by: int) {
        const count = view.model.items.length
        view.model.choose((view.model.selectedTab + by + count) % count)
    }

    // What has the keyboard is to be seen, with some room around it.
    function reveal(item: Item) {
        if (!item || !flickable.interactive) return
        for (let ancestor = item; ancestor !== area; ancestor = ancestor.parent)
            if (!ancestor) return
        const top = item.mapToItem(area, 0, 0).y - 16
        const bottom = top + item.height + 32
        const y = Math.min(Math.max(flickable.contentY, bottom - flickable.height), top)
        flickable.contentY = Math.max(0, Math.min(y, flickable.contentHeight - flickable.height))
    }

    implicitWidth: model.windowSize.width
    implicitHeight: model.windowSize.height
    focus: true
    LayoutMirroring.enabled: Qt.application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true
    onFocusItemChanged: reveal(focusItem)
    Keys.onPressed: event => {
        if (!(event.modifiers & Qt.ControlModifier)) return
        if (event.key === Qt.Key_PageDown || event.key === Qt.Key_Tab) view.step(1)
        else if (event.key === Qt.Key_PageUp || event.key === Qt.Key_Backtab) view.step(-1)
        else return
        event.accepted = true
    }

    Rectangle {
        anchors.fill: parent
        color: view.palette.window
    }

    Toolbar {
        id: toolbar
        anchors { left: parent.left; right: parent.right; top: parent.top }
        visible: view.model.showsToolbar
        height: visible ? implicitHeight : 0
        model: view.model
    }

    Flickable {
        id: flickable
        anchors { left: parent.left; right: parent.right; top: toolbar.bottom; bottom: parent.bottom }
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        interactive: contentHeight > height
        contentWidth: width
        contentHeight: area.tallest

        Item {
            id: area
            objectName: "SettingsPaneArea"
            readonly property real tallest: {
                let height = 0
                for (let index = 0; index < visibleChildren.length; ++index)
                    height = Math.max(height, visibleChildren[index].implicitHeight)
                return height
            }
            width: flickable.width
            height: tallest
        }
    }
}
