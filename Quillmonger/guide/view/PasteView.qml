import QtQuick

// How an item of the history is pasted.
FeatureScreen {
    title: qsTrId("paste_title")
    texts: [qsTrId("paste_description_1"), qsTrId("paste_description_2")]
    video: "paste_quillmonger"
}
