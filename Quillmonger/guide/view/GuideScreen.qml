import QtQuick
import Quillmonger.Guide
import Quillmonger.Resources

// What all screens have: the title at the top, below it what the screen shows, then the texts, and the buttons at the
// bottom. What it shows gives way to long texts.
FocusScope {
    id: screen

    required property GettingStartedModel model
    required property Theme theme
    property string title: ""
    property var texts: []
    property int textWidth: width - 80
    property int demonstrationHeight: 360

    property string backText: qsTrId("previous_literal")
    property string backSymbol: "arrow.left.circle"
    property string forwardText: qsTrId("continue_literal")
    property string forwardSymbol: "arrow.right.circle"

    // What the screen shows above its texts.
    default property alias demonstration: stage.data
    // What stands between the texts and the buttons, if anything.
    property alias extra: extraRow.data

    readonly property bool isMirrored: LayoutMirroring.enabled

    focus: true
    Accessible.role: Accessible.Pane
    Accessible.name: title
    Keys.onReturnPressed: model.forward()
    Keys.onEnterPressed: model.forward()
    Keys.onEscapePressed: model.back()
    Keys.onLeftPressed: isMirrored ? model.showNext() : model.showPrevious()
    Keys.onRightPressed: isMirrored ? model.showPrevious() : model.showNext()

    GuideText {
        id: heading
        objectName: "GuideTitle"
        anchors { left: parent.left; right: parent.right; top: parent.top; leftMargin: 40; rightMargin: 40; topMargin: 30 }
        theme: screen.theme
        font { pixelSize: screen.theme.searchFontSize; bold: true }
        color: screen.theme.primary
        text: screen.title
        Accessible.role: Accessible.Heading
    }

    Item {
        id: stage
        anchors {
            left: parent.left; right: parent.right; top: heading.bottom
            leftMargin: 32; rightMargin: 32; topMargin: 18
        }
        height: Math.min(screen.demonstrationHeight, extraRow.y - words.height - 36 - y)
    }

    Column {
        id: words
        anchors.horizontalCenter: parent.horizontalCenter
        y: (stage.y + stage.height + extraRow.y - height) / 2
        width: screen.textWidth
        spacing: 8

        Repeater {
            model: screen.texts

            GuideText {
                required property string modelData
                objectName: "GuideText"
                width: words.width
                theme: screen.theme
                text: modelData
            }
        }
    }

    Item {
        id: extraRow
        anchors { left: parent.left; right: parent.right; bottom: forwardButton.top; bottomMargin: height > 0 ? 18 : 0 }
        height: childrenRect.height
    }

    GuideButton {
        objectName: "GuideBackButton"
        anchors { left: parent.left; bottom: parent.bottom; margins: 24 }
        theme: screen.theme
        symbol: screen.backSymbol
        text: screen.backText
        onTriggered: screen.model.back()
    }

    GuideButton {
        id: forwardButton
        objectName: "GuideForwardButton"
        anchors { right: parent.right; bottom: parent.bottom; margins: 24 }
        focus: true
        isDefault: true
        theme: screen.theme
        symbol: screen.forwardSymbol
        text: screen.forwardText
        onTriggered: screen.model.forward()
    }
}
