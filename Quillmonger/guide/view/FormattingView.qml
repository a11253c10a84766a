import QtQuick

// How an item is pasted without its formatting.
FeatureScreen {
    title: qsTrId("formatting_title")
    texts: [qsTrId("formatting_description")]
    video: "formatting_quillmonger"
}
