import QtQuick
import KeyboardShortcuts
import Quillmonger.Resources

// A field that shows the chord of a name and records another one. Tab or a click starts the recording, and at rest Space
// and Return do.
RecorderField {
    id: recorder

    // What the chord is for, read aloud.
    required property string label
    required property Theme theme

    // Keys that stay with this control in every window.
    readonly property var ownKeys: [Qt.Key_Return]

    implicitWidth: Math.max(minimumWidth, 220, words.implicitWidth + words.anchors.margins * 2)
    implicitHeight: 30
    activeFocusOnTab: canBecomeKey
    Accessible.role: Accessible.HotkeyField
    Accessible.name: label
    Accessible.description: text === "" ? placeholder : text
    Accessible.focusable: true
    Accessible.onPressAction: record()
    Keys.onSpacePressed: event => { if (!event.isAutoRepeat) record() }
    Keys.onReturnPressed: event => { if (!event.isAutoRepeat) record() }
    Keys.onEnterPressed: event => { if (!event.isAutoRepeat) record() }

    Rectangle {
        anchors.fill: parent
        radius: recorder.theme.fieldRadius
        antialiasing: true
        color: recorder.theme.field
        border { width: 1; color: recorder.activeFocus ? recorder.theme.accentColor : recorder.theme.border }
    }

    Text {
        id: words
        objectName: "RecorderText"
        anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter; margins: 30 }
        horizontalAlignment: Text.AlignHCenter
        elide: Text.ElideMiddle
        textFormat: Text.PlainText
        renderType: Text.NativeRendering
        font.pixelSize: recorder.theme.paneFontSize
        color: recorder.text === "" || recorder.isRecording ? recorder.theme.tertiary : recorder.theme.primary
        text: recorder.text === "" ? recorder.placeholder : recorder.text
        Accessible.ignored: true
    }

    TapHandler {
        onTapped: recorder.record()
    }

    SymbolButton {
        objectName: "RecorderClearButton"
        anchors { right: parent.right; rightMargin: 4; verticalCenter: parent.verticalCenter }
        visible: recorder.showsClearButton
        activeFocusOnTab: false
        implicitWidth: 24
        symbol: "xmark"
        symbolSize: 14
        symbolColor: recorder.theme.secondary
        text: qsTrId("record_shortcut_clear")
        theme: recorder.theme
        onTriggered: recorder.clear()
    }

    FocusRing {
        visible: recorder.isRecording
        radius: recorder.theme.fieldRadius + 3
        control: recorder
        theme: recorder.theme
    }
}
