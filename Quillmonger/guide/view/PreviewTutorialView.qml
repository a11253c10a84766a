import QtQuick

// What the preview shows.
FeatureScreen {
    title: qsTrId("preview_tutorial_title")
    texts: [qsTrId("preview_tutorial_description")]
    video: "preview_quillmonger"
}
