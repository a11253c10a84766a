
import QtQuick
import Settings
Container {
    id: pane
    required property string name
    contentWidth: name === "first" ? 300 : 400
    objectName: name
    property alias button: button
    Section { label: "A"; Item { implicitWidth: 10; implicitHeight: pane.name === "first" ? 100 : 150 } }
    Section {
        label: "A longer label"
        FocusScope {
            id: button
            objectName: "button"
            implicitWidth: 40; implicitHeight: 20
            activeFocusOnTab: true
            property int presses: 0
            Keys.onSpacePressed: ++presses
        }
    }
}