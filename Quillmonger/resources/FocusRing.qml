import QtQuick

// Shows which control has the keyboard.
Rectangle {
    required property Item control
    required property Theme theme

    anchors { fill: parent; margins: -3 }
    visible: control.activeFocus
    antialiasing: true
    color: "transparent"
    border { width: 2; color: theme.accentColor }
}
