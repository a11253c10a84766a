import QtQuick
import Quillmonger.Resources

// The key that pastes a row: Return for the selected one, a digit for the first nine.
Item {
    id: hint

    required property int index
    required property bool isSelected
    required property Theme theme

    width: isSelected ? 22 + 3 : index < 9 ? Math.max(22, key.implicitWidth) + 3 : 0
    height: theme.symbolSize

    Symbol {
        objectName: "ReturnKey"
        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
        visible: hint.isSelected
        rotation: 180
        name: "arrow.uturn.right"
        color: hint.theme.selectedPrimary
        size: 16
    }

    Text {
        id: key
        objectName: "QuickPasteKey"
        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
        visible: !hint.isSelected && hint.index < 9
        renderType: Text.NativeRendering
        font.pixelSize: hint.theme.keyFontSize
        color: hint.theme.tertiary
        text: qsTrId("quick_paste_key").arg(hint.index + 1)
        Accessible.ignored: true
    }
}
