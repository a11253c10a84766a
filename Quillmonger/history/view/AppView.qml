import QtQuick
import Quillmonger.History
import Quillmonger.Resources
import Quillmonger.Search

// The content of the history window.
FocusScope {
    id: app

    required property ClipboardViewAdapter clipboard
    required property SearchBarModel search
    required property HistorySettings settings
    required property Appearance appearance

    // Whether what is transparent shows what lies behind the window. Corners would be black otherwise.
    property bool blendsTransparency: true

    readonly property Theme theme: Theme {
        isDark: app.appearance.isDark
        reducesMotion: app.appearance.reducesMotion
    }

    LayoutMirroring.enabled: Qt.application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true
    implicitWidth: 600
    implicitHeight: 445
    focus: true

    Rectangle {
        objectName: "WindowBackground"
        anchors.fill: parent
        radius: app.blendsTransparency ? app.theme.windowRadius : 0
        antialiasing: true
        color: app.theme.window
        border { width: 1; color: app.theme.border }
    }

    SearchBarView {
        id: searchBar
        anchors { left: parent.left; right: parent.right; top: parent.top }
        focus: true
        model: app.search
        theme: app.theme
    }

    Rectangle {
        id: separator
        anchors { left: parent.left; right: parent.right; top: searchBar.bottom; leftMargin: 1; rightMargin: 1 }
        height: 1
        color: app.theme.separator
    }

    ClipboardView {
        anchors {
            left: parent.left; right: parent.right; top: separator.bottom; bottom: parent.bottom
            leftMargin: 1; rightMargin: 1; bottomMargin: 1
        }
        clipboard: app.clipboard
        settings: app.settings
        theme: app.theme
        cornerRadius: app.blendsTransparency ? app.theme.windowRadius : 0
    }
}
