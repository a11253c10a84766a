import QtQuick
import Quillmonger.Resources
import Quillmonger.Settings

// Radio buttons for the values of a setting, each with what it means. The group is one stop for the Tab key; the arrow
// keys choose.
FocusScope {
    id: radios

    required property ChoiceModel choice
    required property var hints
    required property int hintWidth
    // What is chosen, for those who can't see the section's label.
    required property string label
    required property Theme theme

    // Keys that stay with this control in every window.
    readonly property var ownKeys: [Qt.Key_Up, Qt.Key_Down]
    readonly property real firstLineHeight: 18
    readonly property int leastWidth: hintWidth

    function move(by: int) {
        radios.choice.select(Math.min(Math.max(radios.choice.selected + by, 0), radios.choice.titles.length - 1))
    }

    width: parent ? parent.width : 0
    implicitHeight: column.height
    activeFocusOnTab: true
    Accessible.role: Accessible.Grouping
    Accessible.name: label
    Accessible.focusable: true
    Keys.onUpPressed: move(-1)
    Keys.onDownPressed: move(1)
    Keys.onLeftPressed: move(LayoutMirroring.enabled ? 1 : -1)
    Keys.onRightPressed: move(LayoutMirroring.enabled ? -1 : 1)

    Column {
        id: column
        width: parent.width
        spacing: 12

        Repeater {
            model: radios.choice.titles

            Column {
                id: option

                required property int index
                required property string modelData

                width: parent.width
                spacing: 4

                RadioButton {
                    objectName: radios.objectName + "-" + option.index
                    width: parent.width
                    text: option.modelData
                    note: radios.hints[option.index]
                    isSelected: radios.choice.selected === option.index
                    group: radios
                    theme: radios.theme
                    onTriggered: radios.choice.select(option.index)
                }

                SettingNote {
                    theme: radios.theme
                    maximumWidth: radios.hintWidth
                    text: radios.hints[option.index]
                }
            }
        }
    }
}
