import QtQuick
import Quillmonger.Guide
import Quillmonger.Resources

// A looped video, as large as there is room for. A click, Space and Return let it pause and go on; it rests while the
// window is away, and waits to be started where the user wants less motion.
Item {
    id: player

    required property GettingStartedModel model
    required property Theme theme
    required property string video
    required property string title

    property bool isWanted: !theme.reducesMotion
    readonly property bool isWindowShown: Window.visibility !== Window.Hidden && Window.visibility !== Window.Minimized
    readonly property size shape: Qt.size(4, 3)
    readonly property real pictureWidth: Math.min(width, height * shape.width / shape.height)

    function toggle() {
        if (picture.canPlay)
            isWanted = !isWanted
    }

    anchors.fill: parent

    Rectangle {
        id: frame
        objectName: "GuideVideo"
        anchors { top: parent.top; horizontalCenter: parent.horizontalCenter }
        width: Math.floor(player.pictureWidth)
        height: Math.floor(player.pictureWidth * player.shape.height / player.shape.width)
        radius: 10
        antialiasing: true
        color: player.theme.field
        border { width: 1; color: player.theme.border }
        activeFocusOnTab: picture.canPlay
        Accessible.role: picture.canPlay ? Accessible.Button : Accessible.Graphic
        Accessible.name: (!picture.canPlay ? qsTrId("guide_video_still")
            : player.isWanted ? qsTrId("guide_video_pause") : qsTrId("guide_video_play")).arg(player.title)
        Accessible.focusable: picture.canPlay
        Accessible.onPressAction: player.toggle()
        Keys.onReturnPressed: player.toggle()
        Keys.onEnterPressed: player.toggle()
        Keys.onSpacePressed: player.toggle()
        readonly property var ownKeys: playControl.ownKeys

        VideoPicture {
            id: picture
            objectName: "GuideVideoPicture"
            anchors { fill: parent; margins: 1 }
            model: player.model
            video: player.video
            radius: frame.radius - 1
            isPlaying: player.isWanted && player.isWindowShown
        }

        Rectangle {
            id: playControl
            objectName: "GuideVideoPlayControl"
            anchors.centerIn: parent
            width: 64
            height: 64
            radius: 32
            antialiasing: true
            visible: picture.canPlay && !player.isWanted
            color: player.theme.highlightColor

            Symbol {
                anchors { centerIn: parent; horizontalCenterOffset: 1 }
                name: "play"
                color: player.theme.selectedPrimary
                size: 32
            }
        }

        FocusRing {
            radius: frame.radius + 3
            control: frame
            theme: player.theme
        }

        TapHandler { onTapped: player.toggle() }
    }
}
