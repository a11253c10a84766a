import QtQuick
import Quillmonger.Resources
import Quillmonger.Settings

// What this program is, which version, and whose.
Rectangle {
    id: about

    required property AboutModel model
    required property Appearance appearance

    readonly property Theme theme: Theme { isDark: about.appearance.isDark }

    LayoutMirroring.enabled: Qt.application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true
    implicitWidth: 540
    implicitHeight: 280
    color: theme.window

    Column {
        anchors { left: parent.left; right: parent.right; top: parent.top; topMargin: 18 }

        Image {
            objectName: "AppIcon"
            anchors.horizontalCenter: parent.horizontalCenter
            width: 72
            height: 72
            sourceSize: Qt.size(width * Screen.devicePixelRatio, height * Screen.devicePixelRatio)
            source: "qrc:/qt-project.org/imports/Quillmonger/Resources/quillmonger.svg"
            Accessible.ignored: true
        }

        AboutLine {
            objectName: "AppNameText"
            font { pixelSize: 40; weight: Font.Light }
            color: about.theme.primary
            text: "Quillmonger"
        }

        AboutLine {
            objectName: "VersionText"
            bottomPadding: 8
            font.pixelSize: about.theme.keyFontSize
            color: about.theme.secondary
            text: qsTrId("about_version").arg(about.model.version)
        }

        AboutLine {
            font.pixelSize: about.theme.hintFontSize
            color: about.theme.secondary
            text: qsTrId("about_rights")
        }

        AboutLine {
            font.pixelSize: about.theme.hintFontSize
            color: about.theme.secondary
            text: qsTrId("about_licence")
        }
    }

    Row {
        anchors { horizontalCenter: parent.horizontalCenter; bottom: parent.bottom; bottomMargin: 20 }
        spacing: 12

        PushButton {
            objectName: "PrivacyButton"
            text: qsTrId("about_privacy_button")
            theme: about.theme
            onTriggered: about.model.open(AboutModel.Page.privacy)
        }

        PushButton {
            objectName: "AcknowledgementsButton"
            text: qsTrId("about_acknowledgements_button")
            theme: about.theme
            onTriggered: about.model.open(AboutModel.Page.acknowledgements)
        }

        PushButton {
            objectName: "WebsiteButton"
            text: qsTrId("about_website_button")
            theme: about.theme
            onTriggered: about.model.open(AboutModel.Page.website)
        }
    }
}
