import QtQuick
import Quillmonger.Guide
import Quillmonger.Resources

// What a new user needs to know, on one page.
Rectangle {
    id: guide

    required property GettingStartedModel model
    required property Appearance appearance

    readonly property Theme theme: Theme { isDark: guide.appearance.isDark }

    implicitWidth: 550
    implicitHeight: 640
    color: theme.window

    Column {
        anchors { left: parent.left; right: parent.right; top: parent.top; margins: 56; topMargin: 48 }
        spacing: 14

        Image {
            anchors.horizontalCenter: parent.horizontalCenter
            width: 112
            height: 112
            sourceSize: Qt.size(width * Screen.devicePixelRatio, height * Screen.devicePixelRatio)
            source: "qrc:/qt-project.org/imports/Quillmonger/Resources/quillmonger.svg"
            Accessible.ignored: true
        }

        Text {
            objectName: "GettingStartedTitle"
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WordWrap
            renderType: Text.NativeRendering
            font { pixelSize: guide.theme.titleFontSize; bold: true }
            color: guide.theme.primary
            text: qsTrId("getting_started_title")
        }

        Text {
            width: parent.width
            bottomPadding: 22
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WordWrap
            renderType: Text.NativeRendering
            font.pixelSize: guide.theme.rowFontSize
            color: guide.theme.secondary
            text: qsTrId("getting_started_text")
        }

        GuideStep {
            objectName: "GettingStartedChord"
            width: parent.width
            symbol: "clipboard"
            title: qsTrId("getting_started_chord").arg(guide.model.chord)
            details: qsTrId("getting_started_chord_details")
            theme: guide.theme
        }

        Item { width: 1; height: 2 }

        GuideStep {
            width: parent.width
            symbol: "magnifyingglass"
            title: qsTrId("getting_started_search")
            details: qsTrId("getting_started_search_details")
            theme: guide.theme
        }

        Item { width: 1; height: 2 }

        GuideStep {
            width: parent.width
            symbol: "arrow.uturn.right"
            title: qsTrId("getting_started_paste")
            details: qsTrId("getting_started_paste_details")
            theme: guide.theme
        }
    }

    PushButton {
        objectName: "GettingStartedFinish"
        anchors { horizontalCenter: parent.horizontalCenter; bottom: parent.bottom; bottomMargin: 44 }
        focus: true
        isDefault: true
        text: qsTrId("getting_started_finish")
        theme: guide.theme
        onTriggered: guide.model.finish()
    }
}
