import QtQuick
import Quillmonger.Resources
import Quillmonger.Update

// Where the updater stands, and what it asks. Escape closes it.
Rectangle {
    id: view

    required property UpdateModel model
    required property Appearance appearance

    // Keys that stay with this window, and hide no other one.
    readonly property var ownKeys: [Qt.Key_Escape]
    readonly property Theme theme: Theme {
        isDark: view.appearance.isDark
        reducesMotion: view.appearance.reducesMotion
    }

    implicitWidth: 520
    implicitHeight: column.implicitHeight + 2 * theme.paneMargin
    color: theme.window
    LayoutMirroring.enabled: Qt.application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true
    Accessible.role: Accessible.Dialog
    Accessible.name: model.heading
    Accessible.description: model.message
    Keys.onEscapePressed: model.close()

    // The desktop's own way to close a window.
    Connections {
        target: view.Window.window
        function onClosing() {
            view.model.close();
        }
    }

    Column {
        id: column
        anchors { left: parent.left; right: parent.right; top: parent.top; margins: view.theme.paneMargin }
        spacing: 20

        Row {
            width: parent.width
            spacing: 20

            Image {
                id: icon
                width: 56
                height: 56
                sourceSize: Qt.size(width * Screen.devicePixelRatio, height * Screen.devicePixelRatio)
                source: "qrc:/qt-project.org/imports/Quillmonger/Resources/quillmonger.svg"
                Accessible.ignored: true
            }

            Column {
                width: parent.width - icon.width - parent.spacing
                spacing: 8

                Text {
                    objectName: "UpdateHeading"
                    width: parent.width
                    horizontalAlignment: Text.AlignLeft
                    wrapMode: Text.Wrap
                    textFormat: Text.PlainText
                    renderType: Text.NativeRendering
                    font { pixelSize: view.theme.rowFontSize; bold: true }
                    color: view.theme.primary
                    text: view.model.heading
                }

                Text {
                    objectName: "UpdateMessage"
                    width: parent.width
                    visible: text !== ""
                    horizontalAlignment: Text.AlignLeft
                    wrapMode: Text.Wrap
                    textFormat: Text.PlainText
                    renderType: Text.NativeRendering
                    font.pixelSize: view.theme.bodyFontSize
                    color: view.theme.secondary
                    text: view.model.message
                }

                ProgressBar {
                    objectName: "UpdateProgress"
                    width: parent.width
                    visible: view.model.isBusy
                    value: view.model.progress
                    name: view.model.heading
                    theme: view.theme
                }
            }
        }

        ReleaseNotes {
            objectName: "UpdateNotes"
            width: parent.width
            visible: text !== ""
            text: view.model.notes
            theme: view.theme
        }

        Flow {
            width: parent.width
            layoutDirection: Qt.RightToLeft
            spacing: 12

            Repeater {
                model: view.model.buttons
                // Those that were there before have gone, and the keyboard with them.
                onItemAdded: (index, item) => index === 0 && item.forceActiveFocus()

                PushButton {
                    required property int index
                    required property string modelData

                    objectName: "UpdateButton" + index
                    // Nobody is led to break off what goes well.
                    isDefault: index === 0 && !view.model.isBusy
                    text: modelData
                    theme: view.theme
                    onTriggered: view.model.press(index)
                }
            }
        }
    }
}
