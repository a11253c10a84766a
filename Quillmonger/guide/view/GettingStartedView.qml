import QtQuick
import Quillmonger.Guide
import Quillmonger.Resources

// The guide of a first start, a screen at a time. It is moved by its background and resized by its
// edges, since it has no frame.
FocusScope {
    id: guide

    required property GettingStartedModel model
    required property Appearance appearance

    // Whether what is transparent shows what lies behind the window. Corners would be black otherwise.
    property bool blendsTransparency: true

    readonly property Theme theme: Theme {
        isDark: guide.appearance.isDark
        reducesMotion: guide.appearance.reducesMotion
    }
    // By the ordinals of the screens.
    readonly property var views: [
        "AccessibilityView.qml", "FormattingView.qml", "PasteView.qml", "PreviewTutorialView.qml", "SearchView.qml",
        "SettingsView.qml", "StartupView.qml", "WelcomeView.qml"
    ]

    LayoutMirroring.enabled: Qt.application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true
    implicitWidth: 550
    implicitHeight: 640
    focus: true

    Rectangle {
        objectName: "WindowBackground"
        anchors.fill: parent
        radius: guide.blendsTransparency ? guide.theme.windowRadius : 0
        antialiasing: true
        color: guide.theme.window
        border { width: 1; color: guide.theme.border }
    }

    DragHandler {
        target: null
        onActiveChanged: if (active) guide.Window.window.startSystemMove()
    }

    Connections {
        target: guide.Window.window
        function onClosing() { guide.model.quit() }
    }

    Loader {
        id: loader
        objectName: "GuideScreenLoader"
        anchors.fill: parent
        focus: true

        function show(view: string) {
            setSource(view, { model: guide.model, theme: guide.theme })
            fade.restart()
        }

        readonly property string view: guide.views[guide.model.currentScreen]
        onViewChanged: show(view)
        Component.onCompleted: show(view)

        NumberAnimation {
            id: fade
            target: loader
            property: "opacity"
            from: 0
            to: 1
            duration: guide.theme.fade
        }
    }

    ResizeEdges { anchors.fill: parent }
}
