import QtQuick

// Something that is on or off. A click, Space and Return ask for the other state; the owner sets it.
Item {
    id: control

    required property string text
    required property bool isOn
    required property Theme theme
    property string note: ""
    signal toggled()

    // Keys that stay with this control in every window.
    readonly property var ownKeys: [Qt.Key_Return]
    readonly property bool isMirrored: LayoutMirroring.enabled

    implicitWidth: 38
    implicitHeight: 22
    activeFocusOnTab: true
    opacity: enabled ? 1 : theme.disabledOpacity
    Accessible.role: Accessible.CheckBox
    Accessible.name: text
    Accessible.description: note
    Accessible.checkable: true
    Accessible.checked: isOn
    Accessible.focusable: true
    Accessible.onPressAction: toggled()
    Accessible.onToggleAction: toggled()
    Keys.onSpacePressed: toggled()
    Keys.onReturnPressed: toggled()
    Keys.onEnterPressed: toggled()

    Rectangle {
        objectName: "SwitchTrack"
        anchors.fill: parent
        radius: height / 2
        antialiasing: true
        color: control.isOn ? control.theme.highlightColor : control.theme.switchOff
    }

    Rectangle {
        objectName: "SwitchThumb"
        readonly property bool isAtRight: control.isOn !== control.isMirrored
        x: isAtRight ? control.width - width - 2 : 2
        y: 2
        width: 18
        height: 18
        radius: 9
        antialiasing: true
        color: control.theme.selectedPrimary
        Behavior on x { NumberAnimation { duration: control.theme.rowMotion; easing.type: Easing.OutCubic } }
    }

    FocusRing {
        radius: height / 2
        control: control
        theme: control.theme
    }

    TapHandler { onTapped: control.toggled() }
}
