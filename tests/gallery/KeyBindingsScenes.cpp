#include "tests/gallery/KeyBindingsScenes.h"

#include <QGuiApplication>
#include <QQuickItem>
#include <QTest>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "Quillmonger/input/ShortcutNames.h"
#include "Quillmonger/resources/AlertWindow.h"
#include "Quillmonger/resources/Texts.h"
#include "Quillmonger/settings/SettingsKeys.h"
#include "tests/gallery/KeyBindingsStage.h"
#include "tests/gallery/SettingsStage.h"

namespace testsupport {

namespace {

using Content = foundation::AlertSheet::Content;
using Role = foundation::AlertSheet::Button::Role;
using quillmonger::localizedText;

struct Scene {
  const char* name;
  std::function<void(KeyBindingsStage&)> set;
};

void record(KeyBindingsStage& stage, const QString& field) {
  find(stage.pane(), field)->forceActiveFocus(Qt::TabFocusReason);
}

const std::vector<Scene>& scenes() {
  static const std::vector<Scene> all{
      {"keys", [](KeyBindingsStage&) {}},
      {"keys-recording", [](KeyBindingsStage& stage) { record(stage, "ActivateRecorder"); }},
      {"keys-recording-cleared",
       [](KeyBindingsStage& stage) {
         record(stage, "QuickPaste2Recorder");
         stage.events().press(51);
       }},
      {"keys-rest-focus",
       [](KeyBindingsStage& stage) {
         record(stage, "QuickPaste1Recorder");
         stage.events().press(53);
       }},
      {"keys-long-and-empty",
       [](KeyBindingsStage& stage) {
         stage.defaults().set(quillmonger::keys::quickPaste, true);
         stage.shortcuts().setShortcut(keyboardshortcuts::Shortcut{121, 0x1B00}, quillmonger::shortcutname::activate());
         stage.shortcuts().setShortcut(std::nullopt, quillmonger::shortcutname::quickPaste()[0]);
       }},
      {"keys-button-focus", [](KeyBindingsStage& stage) { record(stage, "RestoreDefaultsButton"); }},
  };
  return all;
}

std::vector<std::pair<const char*, Content>> questions() {
  const std::string taken = QString::fromStdString(localizedText("keyboard_shortcut_used_by_menu_item"))
                                .arg(QString::fromStdString(localizedText("status_bar_settings_button")))
                                .toStdString();
  return {{"alert-menu", {taken, "", {{localizedText("confirm_string")}}}},
          {"alert-system",
           {localizedText("keyboard_shortcut_used_by_system"),
            localizedText("keyboard_shortcuts_can_be_changed"),
            {{localizedText("confirm_string")}}}},
          {"alert-restore",
           {localizedText("restore_defaults_alert_title"),
            localizedText("restore_defaults_alert_msg"),
            {{localizedText("restore_string"), Role::standard}, {localizedText("cancel_string"), Role::cancel}}}},
          {"alert-clear",
           {localizedText("settings_clipboard_clear_history_alert_title"),
            localizedText("settings_clipboard_clear_history_alert_message"),
            {{localizedText("clear_string"), Role::destructive}, {localizedText("cancel_string"), Role::cancel}}}}};
}

void save(QQuickView& view, const QDir& folder, const QString& name) {
  QCoreApplication::processEvents();
  view.grabWindow().save(folder.filePath(name + ".png"));
}

void picture(const QDir& folder, quillmonger::ColorScheme scheme, const QString& suffix) {
  const auto chosen = std::optional(scheme);
  for (const Scene& scene : scenes()) {
    KeyBindingsStage stage;
    stage.defaults().set(quillmonger::keys::selectedColorScheme, chosen);
    scene.set(stage);
    save(stage.pane(), folder, QLatin1String(scene.name) + suffix);
  }
  for (const auto& [name, content] : questions()) {
    KeyBindingsStage stage;
    stage.defaults().set(quillmonger::keys::selectedColorScheme, chosen);
    quillmonger::AlertWindow window(stage.engine(), stage.appearance(), content, [](std::size_t) {});
    window.show();
    window.requestActivate();
    static_cast<void>(QTest::qWaitForWindowActive(&window));
    save(window, folder, QLatin1String(name) + suffix);
  }
}

}  // namespace

void pictureKeyBindings(const QDir& folder, quillmonger::ColorScheme scheme) {
  const QString shade = scheme == quillmonger::ColorScheme::dark ? "-dark" : "-light";
  picture(folder, scheme, shade);
  QGuiApplication::setLayoutDirection(Qt::RightToLeft);
  picture(folder, scheme, shade + "-mirrored");
  QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

}  // namespace testsupport
