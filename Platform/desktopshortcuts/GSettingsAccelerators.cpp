#include "Platform/desktopshortcuts/GSettingsAccelerators.h"

#include <gio/gio.h>

#include <algorithm>
#include <array>
#include <memory>
#include <span>
#include <string>

namespace platform {

namespace {

struct Free {
  void operator()(GSettings* settings) const { g_object_unref(settings); }
  void operator()(GSettingsSchema* schema) const { g_settings_schema_unref(schema); }
  void operator()(GVariant* value) const { g_variant_unref(value); }
  void operator()(char** list) const { g_strfreev(list); }
  void operator()(const char** list) const { g_free(list); }
};
using Schema = std::unique_ptr<GSettingsSchema, Free>;
using Settings = std::unique_ptr<GSettings, Free>;
using Value = std::unique_ptr<GVariant, Free>;

constexpr std::size_t mostCustomChords = 256;
constexpr std::size_t longestPath = 512;

struct DesktopSchema {
  std::string_view desktop;
  const char* id;
};

// Each key of these that holds a text or a list of texts is a chord, or reads as none.
constexpr auto schemas =
    std::to_array<DesktopSchema>({{"gnome", "org.gnome.desktop.wm.keybindings"},
                                  {"gnome", "org.gnome.mutter.keybindings"},
                                  {"gnome", "org.gnome.mutter.wayland.keybindings"},
                                  {"gnome", "org.gnome.shell.keybindings"},
                                  {"gnome", "org.gnome.settings-daemon.plugins.media-keys"},
                                  {"budgie", "org.gnome.desktop.wm.keybindings"},
                                  {"budgie", "org.gnome.mutter.keybindings"},
                                  {"budgie", "org.gnome.settings-daemon.plugins.media-keys"},
                                  {"budgie", "org.buddiesofbudgie.settings-daemon.plugins.media-keys"},
                                  {"budgie", "com.solus-project.budgie-wm"},
                                  {"mate", "org.mate.Marco.global-keybindings"},
                                  {"mate", "org.mate.Marco.window-keybindings"},
                                  {"mate", "org.mate.SettingsDaemon.plugins.media-keys"},
                                  {"x-cinnamon", "org.cinnamon.desktop.keybindings"},
                                  {"x-cinnamon", "org.cinnamon.desktop.keybindings.wm"},
                                  {"x-cinnamon", "org.cinnamon.desktop.keybindings.media-keys"}});

// Chords that the user added: a list says where each lies.
struct CustomChords {
  std::string_view desktop;
  const char* listSchema;
  const char* list;
  const char* schema;
  // What the listed names lack of a whole path.
  std::string_view before;
  std::string_view after;
};

constexpr auto customChords = std::to_array<CustomChords>(
    {{"gnome", "org.gnome.settings-daemon.plugins.media-keys", "custom-keybindings",
      "org.gnome.settings-daemon.plugins.media-keys.custom-keybinding", "", ""},
     {"budgie", "org.gnome.settings-daemon.plugins.media-keys", "custom-keybindings",
      "org.gnome.settings-daemon.plugins.media-keys.custom-keybinding", "", ""},
     {"budgie", "org.buddiesofbudgie.settings-daemon.plugins.media-keys", "custom-keybindings",
      "org.buddiesofbudgie.settings-daemon.plugins.media-keys.custom-keybinding", "", ""},
     {"x-cinnamon", "org.cinnamon.desktop.keybindings", "custom-list",
      "org.cinnamon.desktop.keybindings.custom-keybinding", "/org/cinnamon/desktop/keybindings/custom-keybindings/",
      "/"}});

// The library stops the process at a schema that isn't installed, and at a key that the schema lacks.
Schema schemaNamed(const char* id) {
  GSettingsSchemaSource* source = g_settings_schema_source_get_default();
  return Schema(source == nullptr ? nullptr : g_settings_schema_source_lookup(source, id, TRUE));
}

std::vector<std::string> textsOf(GVariant* value) {
  if (g_variant_is_of_type(value, G_VARIANT_TYPE_STRING)) return {g_variant_get_string(value, nullptr)};
  if (!g_variant_is_of_type(value, G_VARIANT_TYPE_STRING_ARRAY)) return {};
  gsize count = 0;
  const std::unique_ptr<const char*, Free> texts(g_variant_get_strv(value, &count));
  return {texts.get(), texts.get() + count};
}

std::vector<std::string> textsOf(GSettingsSchema* schema, GSettings* settings, const char* key) {
  if (g_settings_schema_has_key(schema, key) == 0) return {};
  return textsOf(Value(g_settings_get_value(settings, key)).get());
}

void addKeys(std::vector<std::string>& texts, GSettingsSchema* schema, GSettings* settings) {
  const std::unique_ptr<char*, Free> keys(g_settings_schema_list_keys(schema));
  for (char** key = keys.get(); *key != nullptr; ++key)
    std::ranges::move(textsOf(schema, settings, *key), std::back_inserter(texts));
}

void addSchema(std::vector<std::string>& texts, const char* id) {
  const Schema schema = schemaNamed(id);
  if (!schema || g_settings_schema_get_path(schema.get()) == nullptr) return;
  addKeys(texts, schema.get(), Settings(g_settings_new_full(schema.get(), nullptr, nullptr)).get());
}

bool isPath(std::string_view text) {
  return text.size() <= longestPath && text.size() > 1 && text.front() == '/' && text.back() == '/' &&
         text.find("//") == std::string_view::npos;
}

void addCustomChords(std::vector<std::string>& texts, const CustomChords& custom) {
  const Schema listSchema = schemaNamed(custom.listSchema);
  const Schema schema = schemaNamed(custom.schema);
  if (!listSchema || !schema || g_settings_schema_get_path(listSchema.get()) == nullptr ||
      g_settings_schema_get_path(schema.get()) != nullptr) {
    return;
  }
  const Settings listSettings(g_settings_new_full(listSchema.get(), nullptr, nullptr));
  auto names = textsOf(listSchema.get(), listSettings.get(), custom.list);
  names.resize(std::min(names.size(), mostCustomChords));
  for (const std::string& name : names) {
    const std::string path = std::string(custom.before) + name + std::string(custom.after);
    if (!isPath(path)) continue;
    const Settings settings(g_settings_new_full(schema.get(), nullptr, path.c_str()));
    std::ranges::move(textsOf(schema.get(), settings.get(), "binding"), std::back_inserter(texts));
  }
}

}  // namespace

std::vector<Accelerator> gSettingsAccelerators(std::string_view desktop) {
  std::vector<std::string> texts;
  for (const DesktopSchema& schema : schemas) {
    if (schema.desktop == desktop) addSchema(texts, schema.id);
  }
  for (const CustomChords& custom : customChords) {
    if (custom.desktop == desktop) addCustomChords(texts, custom);
  }
  std::vector<Accelerator> accelerators;
  for (const std::string& text : texts) {
    if (const auto accelerator = gtkAccelerator(text)) accelerators.push_back(*accelerator);
  }
  return accelerators;
}

}  // namespace platform
