import QtQuick
import Quillmonger.Preview
import Quillmonger.Resources

// The content of the preview window: a pane of fixed width.
Item {
    id: view

    required property PreviewModel preview
    required property Appearance appearance

    // Whether what is transparent shows what lies behind the window. Corners would be black otherwise.
    property bool blendsTransparency: true

    readonly property Theme theme: Theme { isDark: view.appearance.isDark }

    implicitWidth: theme.previewWidth
    implicitHeight: 445
    LayoutMirroring.enabled: Qt.application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true

    Item {
        id: pane
        objectName: "PreviewView"
        // Always beside the history, also where the user reads from the right.
        x: 0
        width: view.theme.previewWidth
        height: view.height

        Rectangle {
            anchors.fill: parent
            radius: view.blendsTransparency ? view.theme.windowRadius : 0
            antialiasing: true
            color: view.theme.window
            border { width: 1; color: view.theme.border }
        }

        // While nobody can see it nothing is built.
        Loader {
            anchors { fill: parent; margins: 1 }
            active: view.preview.hasItem
            sourceComponent: Item {
                PreviewContentView {
                    objectName: "PreviewContentView"
                    anchors { left: parent.left; right: parent.right; top: parent.top; bottom: footer.top }
                    preview: view.preview
                    theme: view.theme
                }

                PreviewFooterView {
                    id: footer
                    anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
                    preview: view.preview
                    theme: view.theme
                }
            }
        }

        PreviewEmptyStateView {
            anchors.centerIn: parent
            visible: !view.preview.hasItem
            theme: view.theme
        }
    }
}
