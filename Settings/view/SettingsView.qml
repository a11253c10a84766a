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
    readonly property alias page: flickable

    // The next pane, or the one before.
    function step(by: int) {
        const count = view.model.items.length
        view.model.choose((view.model.selectedTab + by + count) % count)
    }

    function scrollTo(y: real) {
        flickable.contentY = Math.max(0, Math.min(y, flickable.contentHeight - flickable.height))
    }

    // What has the keyboard is to be seen, with what its section says of it, and some room around.
    function reveal(item: Item) {
        if (!item || !flickable.interactive) return
        let shown = item
        for (let ancestor = item; ancestor !== area; ancestor = ancestor.parent) {
            if (!ancestor) return
            if (ancestor instanceof Section && ancestor.height <= flickable.height - 32) shown = ancestor
        }
        const top = shown.mapToItem(area, 0, 0).y - 16
        const bottom = top + shown.height + 32
        view.scrollTo(Math.min(Math.max(flickable.contentY, bottom - flickable.height), top))
    }

    implicitWidth: model.windowSize.width
    implicitHeight: model.windowSize.height
    focus: true
    LayoutMirroring.enabled: Qt.application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true
    onFocusItemChanged: reveal(focusItem)
    Keys.onPressed: event => {
        if (!(event.modifiers & Qt.ControlModifier)) {
            if (event.key === Qt.Key_PageDown) view.scrollTo(flickable.contentY + flickable.height - 40)
            else if (event.key === Qt.Key_PageUp) view.scrollTo(flickable.contentY - flickable.height + 40)
            else return
        } else if (event.key === Qt.Key_PageDown || event.key === Qt.Key_Tab) view.step(1)
        else if (event.key === Qt.Key_PageUp || event.key === Qt.Key_Backtab) view.step(-1)
        else return
        event.accepted = true
    }

    Connections {
        target: view.model
        function onSelectedTabChanged() { view.scrollTo(0) }
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
