import QtQuick
import Quillmonger.Resources

// A check mark that stands in its own colour once the permission is there.
Symbol {
    id: mark

    required property bool isGranted
    required property Theme theme

    objectName: "PermissionMark"
    name: "checkmark.circle"
    size: 24
    color: isGranted ? theme.granted : theme.tertiary
    opacity: isGranted ? 1 : 0.6
    Accessible.role: Accessible.Graphic
    Accessible.name: isGranted ? qsTrId("accessibility_permission_granted") : qsTrId("accessibility_permission_missing")

    SequentialAnimation {
        running: mark.isGranted && !mark.theme.reducesMotion
        NumberAnimation { target: mark; property: "scale"; to: 1.35; duration: mark.theme.fade; easing.type: Easing.OutCubic }
        NumberAnimation { target: mark; property: "scale"; to: 1; duration: mark.theme.fade; easing.type: Easing.InOutCubic }
    }
}
