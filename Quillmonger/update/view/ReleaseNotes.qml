import QtQuick
import Quillmonger.Resources

// A text of any length in a frame of its own. The arrow and page keys scroll it while it has the keyboard.
Rectangle {
    id: notes

    required property string text
    required property Theme theme

    implicitHeight: Math.min(words.implicitHeight + 24, 200)
    radius: theme.fieldRadius
    antialiasing: true
    color: theme.field
    border { width: 1; color: theme.border }
    activeFocusOnTab: area.visibleArea.heightRatio < 1
    Accessible.role: Accessible.StaticText
    Accessible.name: text
    Accessible.focusable: activeFocusOnTab
    Keys.onUpPressed: area.scrollBy(-40)
    Keys.onDownPressed: area.scrollBy(40)
    Keys.onPressed: event => event.accepted = area.scrollByPage(event.key)

    Flickable {
        id: area

        function scrollBy(distance) {
            contentY = Math.max(0, Math.min(contentY + distance, contentHeight - height));
        }
        function scrollByPage(key) {
            if (key !== Qt.Key_PageUp && key !== Qt.Key_PageDown)
                return false;
            scrollBy(key === Qt.Key_PageUp ? -height : height);
            return true;
        }

        anchors { fill: parent; margins: 1 }
        contentHeight: words.implicitHeight + 22
        boundsBehavior: Flickable.StopAtBounds
        clip: true

        Text {
            id: words
            x: 12
            y: 11
            width: area.width - 28
            wrapMode: Text.Wrap
            textFormat: Text.PlainText
            renderType: Text.NativeRendering
            font.pixelSize: notes.theme.previewFontSize
            color: notes.theme.primary
            text: notes.text
            Accessible.ignored: true
        }
    }

    ScrollIndicator {
        anchors { top: parent.top; bottom: parent.bottom; right: parent.right; margins: 4; topMargin: 8; bottomMargin: 8 }
        visible: area.visibleArea.heightRatio < 1
        list: area
        theme: notes.theme
    }

    FocusRing {
        radius: notes.radius + 3
        control: notes
        theme: notes.theme
    }
}
