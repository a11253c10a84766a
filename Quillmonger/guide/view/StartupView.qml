import QtQuick

// How the history is opened.
FeatureScreen {
    title: qsTrId("startup_title")
    texts: [
        model.chord === "" ? qsTrId("startup_description_1_no_chord") : qsTrId("startup_description_1").arg(model.chord),
        qsTrId("startup_description_2")
    ]
    video: "launch_quillmonger"
}
