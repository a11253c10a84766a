import QtQuick
import Quillmonger.Resources

// One option of a pop-up menu.
Rectangle {
    id: option

    required property int index
    required property string modelData
    // The pop-up menu.
    required property Item menu

    readonly property bool isCurrent: menu.current === index
    readonly property bool isChosen: menu.button.selected === index
    readonly property color ink: isCurrent ? menu.theme.selectedPrimary : menu.theme.primary

    objectName: "PopUpOption-" + index
    height: 30
    radius: 5
    antialiasing: true
    color: isCurrent ? menu.theme.highlightColor : "transparent"
    Accessible.role: Accessible.MenuItem
    Accessible.name: modelData
    Accessible.checkable: true
    Accessible.checked: isChosen
    Accessible.focused: isCurrent
    Accessible.onPressAction: menu.choose(index)

    Symbol {
        anchors { left: parent.left; leftMargin: 6; verticalCenter: parent.verticalCenter }
        visible: option.isChosen
        name: "checkmark"
        color: option.ink
        size: 14
    }

    Text {
        anchors { left: parent.left; right: parent.right; leftMargin: 26; rightMargin: 8; verticalCenter: parent.verticalCenter }
        elide: Text.ElideRight
        maximumLineCount: 1
        horizontalAlignment: Text.AlignLeft
        renderType: Text.NativeRendering
        textFormat: Text.PlainText
        font.pixelSize: option.menu.theme.paneFontSize
        color: option.ink
        text: option.modelData
        Accessible.ignored: true
    }

    MouseArea {
        anchors.fill: parent
        hoverEnabled: true
        onEntered: option.menu.moveTo(option.index)
        onClicked: option.menu.choose(option.index)
    }
}
