import QtQuick

// Colours, sizes, type and motion of every window. Text on each background it is meant for has a contrast of at least
// 4.5 to 1.
QtObject {
    required property bool isDark
    property bool reducesMotion: false

    // Backgrounds and lines
    readonly property color window: isDark ? "#22242a" : "#f8f8fa"
    // Of lists and text fields.
    readonly property color field: isDark ? "#1a1c21" : "#ffffff"
    readonly property color border: isDark ? "#44474f" : "#cfd0d8"
    readonly property color separator: isDark ? "#33363e" : "#e4e4ea"
    readonly property color switchOff: isDark ? "#707480" : "#888b97"
    readonly property color scrollBar: isDark ? "#787c88" : "#878a96"

    // Text and symbols
    readonly property color primary: isDark ? "#f1f1f4" : "#1c1d22"
    readonly property color secondary: isDark ? "#a6a9b5" : "#656873"
    readonly property color tertiary: isDark ? "#9699a6" : "#6b6e79"

    // What a button that loses something is called.
    readonly property color destructive: isDark ? "#ff9d94" : "#b3261e"

    // The selected row
    readonly property color highlightColor: isDark ? "#4557b8" : "#4a5dc4"
    readonly property color selectedPrimary: "#ffffff"
    readonly property color selectedSecondary: isDark ? "#d5dbfb" : "#e4e8fd"

    // Behind selected text, with `selectedPrimary` upon it.
    readonly property color selectionColor: isDark ? "#5569d6" : "#4a5dc4"

    readonly property color accentColor: isDark ? "#95a5ff" : "#4357bd"

    // What is as it should be.
    readonly property color granted: isDark ? "#5fcf93" : "#1b7f4c"

    readonly property real disabledOpacity: 0.4

    readonly property int windowRadius: 15
    readonly property int rowRadius: 6
    readonly property int rowHeight: 42
    readonly property int paneMargin: 24
    readonly property int fieldRadius: 8
    readonly property int margin: 8
    readonly property int searchBarHeight: 58
    readonly property int iconSize: 32
    readonly property int symbolSize: 20
    readonly property int indicatorSize: 14

    readonly property int colorBarWidth: 36
    readonly property int colorBarHeight: 18

    // The pane beside the history.
    readonly property int previewWidth: 332
    readonly property int previewMargin: 16
    readonly property int panelRadius: 15

    readonly property int searchFontSize: 20
    readonly property int noteFontSize: 18
    readonly property int rowFontSize: 16
    readonly property int bodyFontSize: 15
    readonly property int keyFontSize: 14
    readonly property int paneFontSize: 14
    readonly property int previewFontSize: 13
    readonly property int hintFontSize: 11

    // Of the font that a row is set in, whatever other fonts a line needs besides.
    readonly property FontMetrics rowMetrics: FontMetrics { font.pixelSize: 16 }

    // Milliseconds. Long enough to be followed with the eye, too short to be waited for.
    readonly property int rowMotion: reducesMotion ? 0 : 90
    readonly property int fade: reducesMotion ? 0 : 140
    // Of a bar whose end nobody knows, from one side to the other.
    readonly property int wander: 900
    // Until a pointer at rest asks what is below it.
    readonly property int tipDelay: 600
}
