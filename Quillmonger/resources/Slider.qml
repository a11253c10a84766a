import QtQuick

// Chooses a number of a range with the mouse or the arrow keys. It only asks for another one; the owner sets it.
Item {
    id: slider

    required property string text
    required property real value
    required property real from
    required property real to
    // From one number to the next; 0 where every number is taken.
    required property real stepSize
    required property Theme theme
    property string valueText: ""
    signal moved(real value)

    // Keys that stay with this control in every window.
    readonly property var ownKeys: [Qt.Key_Up, Qt.Key_Down]
    readonly property bool isMirrored: LayoutMirroring.enabled
    readonly property real keyStep: stepSize > 0 ? stepSize : (to - from) / 20
    readonly property real share: (value - from) / (to - from)
    readonly property real travel: width - thumb.width

    function moveBy(steps: real) { slider.moved(slider.value + steps * slider.keyStep) }
    function moveTo(x: real) {
        const place = Math.min(Math.max((x - thumb.width / 2) / slider.travel, 0), 1)
        slider.moved(slider.from + (slider.isMirrored ? 1 - place : place) * (slider.to - slider.from))
    }

    implicitHeight: 22
    activeFocusOnTab: true
    opacity: enabled ? 1 : theme.disabledOpacity
    Accessible.role: Accessible.Slider
    Accessible.name: text
    Accessible.description: valueText
    Accessible.focusable: true
    Accessible.onIncreaseAction: moveBy(1)
    Accessible.onDecreaseAction: moveBy(-1)
    Keys.onLeftPressed: moveBy(isMirrored ? 1 : -1)
    Keys.onRightPressed: moveBy(isMirrored ? -1 : 1)
    Keys.onUpPressed: moveBy(1)
    Keys.onDownPressed: moveBy(-1)
    Keys.onPressed: event => {
        if (event.key === Qt.Key_Home) slider.moved(slider.from)
        else if (event.key === Qt.Key_End) slider.moved(slider.to)
        else return
        event.accepted = true
    }

    Rectangle {
        id: track
        anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter }
        height: 4
        radius: 2
        antialiasing: true
        color: slider.theme.switchOff
    }

    Rectangle {
        anchors { left: track.left; verticalCenter: parent.verticalCenter }
        width: thumb.width / 2 + slider.share * slider.travel
        height: 4
        radius: 2
        antialiasing: true
        color: slider.theme.highlightColor
    }

    Rectangle {
        id: thumb
        objectName: "SliderThumb"
        readonly property real place: slider.share * slider.travel
        x: slider.isMirrored ? slider.travel - place : place
        anchors.verticalCenter: parent.verticalCenter
        width: 18
        height: 18
        radius: 9
        antialiasing: true
        color: slider.theme.selectedPrimary
        border { width: 1; color: slider.theme.switchOff }

        FocusRing {
            radius: height / 2
            control: slider
            theme: slider.theme
        }
    }

    MouseArea {
        anchors.fill: parent
        preventStealing: true
        onPressed: mouse => slider.moveTo(mouse.x)
        onPositionChanged: mouse => slider.moveTo(mouse.x)
    }
}
