import QtQuick

// How far something is. Below 0 there is no telling, and a part of the bar wanders.
Rectangle {
    id: bar

    required property real value
    required property string name
    required property Theme theme

    readonly property bool isUnknown: value < 0

    implicitHeight: 6
    radius: height / 2
    antialiasing: true
    clip: true
    color: theme.separator
    Accessible.role: Accessible.ProgressBar
    Accessible.name: name

    Rectangle {
        id: part
        width: bar.isUnknown ? bar.width * 0.3 : Math.max(bar.value * bar.width, height)
        height: parent.height
        radius: height / 2
        antialiasing: true
        color: bar.theme.accentColor
        // A bar that keeps still stands in the middle.
        x: !bar.isUnknown ? 0 : bar.theme.reducesMotion ? (bar.width - width) / 2 : wander.place * (bar.width - width)
    }

    QtObject {
        id: wander

        property real place: 0

        property Animation there: SequentialAnimation {
            running: bar.visible && bar.isUnknown && !bar.theme.reducesMotion
            loops: Animation.Infinite

            NumberAnimation { target: wander; property: "place"; from: 0; to: 1; duration: bar.theme.wander; easing.type: Easing.InOutQuad }
            NumberAnimation { target: wander; property: "place"; from: 1; to: 0; duration: bar.theme.wander; easing.type: Easing.InOutQuad }
        }
    }
}
