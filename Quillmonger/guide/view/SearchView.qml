import QtQuick

// How an item is found.
FeatureScreen {
    title: qsTrId("search_title")
    texts: [qsTrId("search_description")]
    video: "search_quillmonger"
}
