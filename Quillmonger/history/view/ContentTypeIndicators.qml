import QtQuick
import Quillmonger.Resources

// What kind of content a row stands for.
Row {
    id: indicators

    required property bool hasOculetResults
    required property bool isImage
    required property bool isFileURL
    required property bool isSelected
    required property Theme theme

    readonly property color color: isSelected ? theme.selectedPrimary : theme.accentColor

    spacing: 4

    Symbol {
        objectName: "OculetIndicator"
        visible: indicators.hasOculetResults
        name: "wand.and.stars"
        color: indicators.color
        size: indicators.theme.indicatorSize
        Accessible.role: Accessible.Graphic
        Accessible.name: qsTrId("oculet_indicator")
    }

    Symbol {
        objectName: "PhotoIndicator"
        visible: indicators.isImage
        name: "photo"
        color: indicators.color
        size: indicators.theme.indicatorSize
        Accessible.role: Accessible.Graphic
        Accessible.name: qsTrId("accessibility_picture")
    }

    Symbol {
        objectName: "FileIndicator"
        visible: indicators.isFileURL
        name: "note.text"
        color: indicators.color
        size: indicators.theme.indicatorSize
        Accessible.role: Accessible.Graphic
        Accessible.name: qsTrId("accessibility_file")
    }
}
