import QtQuick
import Quillmonger.Resources

// One of the program's own symbols in one colour.
Image {
    required property string name
    required property color color
    required property int size

    width: size
    height: size
    sourceSize: Qt.size(size * Screen.devicePixelRatio, size * Screen.devicePixelRatio)
    source: "image://symbol/" + name + "?" + ColorNames.name(color)
}
