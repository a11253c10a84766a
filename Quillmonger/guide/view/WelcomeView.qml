import QtQuick

// What the program is for.
GuideScreen {
    id: screen

    title: qsTrId("welcome_message")
    texts: [qsTrId("welcome_description")]
    textWidth: Math.min(480, width - 70)
    backText: qsTrId("quit_string")
    backSymbol: "xmark.circle"
    forwardText: qsTrId("start_literal")

    Image {
        objectName: "AppIcon"
        anchors.centerIn: parent
        width: Math.min(350, parent.width, parent.height)
        height: width
        sourceSize: Qt.size(width * Screen.devicePixelRatio, height * Screen.devicePixelRatio)
        source: "qrc:/qt-project.org/imports/Quillmonger/Resources/quillmonger.svg"
        Accessible.ignored: true
    }
}
