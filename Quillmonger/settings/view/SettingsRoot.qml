import QtQuick
import Settings
import Quillmonger.Resources

// The settings' window in this program's colours.
SettingsView {
    id: root

    required property Appearance appearance

    readonly property Theme theme: Theme { isDark: root.appearance.isDark }

    palette {
        window: theme.window
        windowText: theme.primary
        mid: theme.separator
        midlight: theme.separator
        alternateBase: theme.field
        link: theme.accentColor
        highlight: theme.highlightColor
        highlightedText: theme.selectedPrimary
    }

    ScrollIndicator {
        objectName: "SettingsScrollIndicator"
        anchors { top: root.page.top; bottom: root.page.bottom; right: root.page.right; margins: 3 }
        visible: root.page.interactive
        list: root.page
        theme: root.theme
    }
}
