import QtQuick
import Settings
import Quillmonger.Resources

// What the panes have in common.
Container {
    id: layout

    required property Appearance appearance

    readonly property Theme theme: Theme {
        isDark: layout.appearance.isDark
        reducesMotion: layout.appearance.reducesMotion
    }

    LayoutMirroring.enabled: Qt.application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true
    palette.windowText: theme.primary
    palette.mid: theme.separator
}
