import QtQuick
import Quillmonger.Resources

// The icon of the application that a copy came from.
Image {
    id: icon

    required property string path
    required property string toolTip
    required property Theme theme

    objectName: "AppIcon"
    width: visible ? theme.iconSize : 0
    height: theme.iconSize
    sourceSize: Qt.size(theme.iconSize * Screen.devicePixelRatio, theme.iconSize * Screen.devicePixelRatio)
    source: path === "" ? "" : "image://appicon/" + encodeURIComponent(path)
    Accessible.role: Accessible.Graphic
    Accessible.name: qsTrId("accessibility_app_icon").arg(toolTip)

    HoverTip {
        visible: icon.toolTip !== ""
        text: icon.toolTip
        theme: icon.theme
    }
}
