import QtQuick
import Quillmonger.Resources
import Quillmonger.Settings

// A setting with a few values, and what it means.
Column {
    id: setting

    required property ChoiceModel choice
    // What is chosen, for those who can't see the section's label.
    required property string label
    required property Theme theme
    property string note: ""
    property alias pickerName: button.objectName

    readonly property real firstLineHeight: button.height

    width: parent ? parent.width : 0
    spacing: 5

    PopUpButton {
        id: button
        anchors.left: parent.left
        width: Math.min(implicitWidth, setting.width)
        text: setting.label
        titles: setting.choice.titles
        selected: setting.choice.selected
        selectedTitle: setting.choice.selectedTitle
        theme: setting.theme
        onChosen: option => setting.choice.select(option)
    }

    SettingNote {
        theme: setting.theme
        text: setting.note
    }
}
