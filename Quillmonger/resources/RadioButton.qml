import QtQuick

// One of several options of which exactly one is chosen. Its group has the keyboard.
Item {
    id: radio

    required property string text
    required property bool isSelected
    // The group that it belongs to.
    required property Item group
    required property Theme theme
    property string note: ""
    signal triggered()

    implicitHeight: Math.max(circle.height, label.implicitHeight)
    Accessible.role: Accessible.RadioButton
    Accessible.name: text
    Accessible.description: note
    Accessible.checkable: true
    Accessible.checked: isSelected
    Accessible.focused: group.activeFocus && isSelected
    Accessible.onPressAction: triggered()

    Rectangle {
        id: circle
        anchors.left: parent.left
        y: Math.max((label.implicitHeight / Math.max(label.lineCount, 1) - height) / 2, 0)
        width: 18
        height: 18
        radius: 9
        antialiasing: true
        color: radio.isSelected ? radio.theme.highlightColor : radio.theme.field
        border { width: radio.isSelected ? 0 : 2; color: radio.theme.switchOff }

        Rectangle {
            anchors.centerIn: parent
            visible: radio.isSelected
            width: 8
            height: 8
            radius: 4
            antialiasing: true
            color: radio.theme.selectedPrimary
        }

        FocusRing {
            radius: height / 2
            visible: radio.group.activeFocus && radio.isSelected
            control: radio.group
            theme: radio.theme
        }
    }

    Text {
        id: label
        anchors { left: circle.right; leftMargin: 8; right: parent.right }
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignLeft
        renderType: Text.NativeRendering
        textFormat: Text.PlainText
        font.pixelSize: radio.theme.paneFontSize
        color: radio.theme.primary
        text: radio.text
        Accessible.ignored: true
    }

    TapHandler { onTapped: radio.triggered() }
}
