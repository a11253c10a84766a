import QtQuick
import Settings
import Quillmonger.Resources
import Quillmonger.Settings

PaneLayout {
    id: pane

    required property SearchSettingsModel settings

    contentWidth: 500
    objectName: "SearchPane"
    Accessible.name: qsTrId("settings_search_title")

    Section {
        label: qsTrId("settings_search_mode_title")

        SwitchSetting {
            switchName: "CaseSensitiveToggle"
            toggle: pane.settings.caseSensitive
            note: qsTrId("settings_case_sensitive_hint")
            noteWidth: 400
            theme: pane.theme
        }

        SwitchSetting {
            switchName: "RegexToggle"
            toggle: pane.settings.regex
            note: qsTrId("settings_regex_hint")
            noteWidth: 400
            theme: pane.theme
        }

        SwitchSetting {
            switchName: "SearchAppNameToggle"
            toggle: pane.settings.appName
            note: qsTrId("settings_serach_include_app_description")
            noteWidth: 400
            theme: pane.theme
        }
    }

    Section {
        label: qsTrId("settings_search_debounce_title")

        Column {
            readonly property real firstLineHeight: slider.height
            readonly property int leastWidth: description.maximumWidth

            width: parent.width
            spacing: 2

            Slider {
                id: slider
                objectName: "DebounceSlider"
                anchors.left: parent.left
                width: Math.min(320, parent.width)
                text: qsTrId("settings_search_debounce_title")
                valueText: qsTrId("settings_search_debounce_value").arg(Number(value).toLocaleString(Qt.locale(), "f", 2))
                value: pane.settings.debounceInterval.value
                from: pane.settings.debounceInterval.from
                to: pane.settings.debounceInterval.to
                stepSize: pane.settings.debounceInterval.step
                theme: pane.theme
                onMoved: value => pane.settings.debounceInterval.set(value)
            }

            SliderEnds {
                anchors.left: parent.left
                width: slider.width
                lower: qsTrId("settings_search_debounce_min_value")
                upper: qsTrId("settings_search_debounce_max_value")
                theme: pane.theme
            }

            SettingNote {
                id: description
                topPadding: 6
                maximumWidth: 400
                theme: pane.theme
                text: qsTrId("settings_search_debounce_description")
            }
        }
    }
}
