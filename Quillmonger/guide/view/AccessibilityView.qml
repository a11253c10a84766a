import QtQuick
import Quillmonger.Resources

// The permission to press keys, and whether it is there.
FeatureScreen {
    id: screen

    title: qsTrId("accessibility_title")
    texts: [qsTrId("accessibility_description_1"), qsTrId("accessibility_description_2")]
    video: "accessibility_quillmonger"
    forwardText: qsTrId("finish_literal")
    forwardSymbol: "checkmark.circle"
    Component.onCompleted: model.accessibilityAppeared()
    Component.onDestruction: model.accessibilityDisappeared()

    extra: Row {
        anchors.horizontalCenter: parent.horizontalCenter
        spacing: 12

        GuideButton {
            objectName: "GrantPermissionsButton"
            theme: screen.theme
            text: qsTrId("accessibility_grant_permissions_button")
            enabled: !screen.model.permissionsGranted
            onTriggered: screen.model.requestPermission()
        }

        PermissionMark {
            anchors.verticalCenter: parent.verticalCenter
            isGranted: screen.model.permissionsGranted
            theme: screen.theme
        }
    }
}
