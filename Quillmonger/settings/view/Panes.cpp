#include "Quillmonger/settings/view/Panes.h"

#include <memory>
#include <utility>

#include "Quillmonger/resources/Texts.h"

namespace quillmonger {

namespace {

using Properties = settings::QmlPaneView::Properties;

struct PaneFacts {
  const char* identifier;
  const char* titleKey;
  const char* symbol;
  const char* symbolKey;
  const char* view;
};

settings::Pane pane(const PaneSurroundings& surroundings, const PaneFacts& facts, Properties model) {
  const auto properties = [&appearance = surroundings.appearance, model = std::move(model)] {
    QVariantMap all = model();
    all.insert(QStringLiteral("appearance"), QVariant::fromValue(&appearance));
    return all;
  };
  const auto source = QStringLiteral("qrc:/qt-project.org/imports/Quillmonger/Settings/%1.qml");
  return {{facts.identifier},
          localizedText(facts.titleKey),
          {std::string("image://symbol/") + facts.symbol, localizedText(facts.symbolKey)},
          std::make_unique<settings::QmlPaneView>(surroundings.parent, QUrl(source.arg(QLatin1String(facts.view))),
                                                  properties)};
}

template <typename Model>
Properties properties(const char* name, Model& model) {
  return [name, &model] { return QVariantMap{{QLatin1String(name), QVariant::fromValue(&model)}}; };
}

}  // namespace

settings::Pane generalPane(const PaneSurroundings& surroundings, std::function<GeneralSettings&()> general) {
  return pane(surroundings, {"general", "settings_general_title", "gearshape", "symbol_gear", "GeneralPane"},
              [general = std::move(general)] {
                return QVariantMap{{QStringLiteral("settings"), QVariant::fromValue(&general())}};
              });
}

settings::Pane ignorePane(const PaneSurroundings& surroundings, IgnoreSettings& ignore,
                          std::function<IgnoredAppsModel&()> apps) {
  return pane(surroundings,
              {"ignore", "settings_ignore_title", "shield.lefthalf.filled", "symbol_shield", "IgnorePane"},
              [&ignore, apps = std::move(apps)] {
                return QVariantMap{{QStringLiteral("settings"), QVariant::fromValue(&ignore)},
                                   {QStringLiteral("apps"), QVariant::fromValue(&apps())}};
              });
}

settings::Pane searchPane(const PaneSurroundings& surroundings, SearchSettingsModel& search) {
  return pane(surroundings,
              {"search", "settings_search_title", "magnifyingglass", "symbol_magnifyingglass", "SearchPane"},
              properties("settings", search));
}

settings::Pane appearancePane(const PaneSurroundings& surroundings, AppearanceSettings& appearance) {
  return pane(surroundings,
              {"appearance", "settings_appearance_title", "paintpalette", "symbol_paintpalette", "AppearancePane"},
              properties("settings", appearance));
}

settings::Pane keyBindingsPane(const PaneSurroundings& surroundings,
                               std::function<KeyBindingsSettings&()> keyBindings) {
  return pane(surroundings,
              {"keyBindings", "settings_key_bindings_title", "keyboard", "symbol_keyboard", "KeyBindingsPane"},
              [keyBindings = std::move(keyBindings)] {
                return QVariantMap{{QStringLiteral("settings"), QVariant::fromValue(&keyBindings())}};
              });
}

}  // namespace quillmonger
