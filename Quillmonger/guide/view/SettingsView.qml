import QtQuick

// What is kept, and where the user says so.
FeatureScreen {
    title: qsTrId("settings_title")
    texts: [qsTrId("settings_description")]
    video: "settings_quillmonger"
}
