import QtQuick
import Quillmonger.Resources

// The icon of an installed application, or a general one.
Image {
    required property string path
    required property int size

    width: size
    height: size
    sourceSize: Qt.size(size * Screen.devicePixelRatio, size * Screen.devicePixelRatio)
    source: "image://appicon/" + encodeURIComponent(path)
    fillMode: Image.PreserveAspectFit
    Accessible.ignored: true
}
