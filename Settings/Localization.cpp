#include "Settings/Localization.h"

#include <algorithm>
#include <array>

namespace settings::localization {

namespace {

struct Words {
  std::string_view language;
  std::string_view settings;
  std::string_view preferences;
};

constexpr int firstVersionThatSaysSettings = 13;
constexpr std::string_view fallbackLanguage = "en";

// With a country where that changes the word.
constexpr auto table = std::to_array<Words>({
    {"ar", "الإعدادات", "تفضيلات"},
    {"bg", "Настройки", "Предпочитания"},
    {"ca", "Configuració", "Preferències"},
    {"cs", "Nastavení", "Předvolby"},
    {"da", "Indstillinger", "Præferencer"},
    {"de", "Einstellungen", "Einstellungen"},
    {"el", "Ρυθμίσεις", "Προτιμήσεις"},
    {"en", "Settings", "Preferences"},
    {"es", "Ajustes", "Preferencias"},
    {"es-mx", "Configuración", "Preferencias"},
    {"fa", "تنظیمات", "ترجیحات"},
    {"fi", "Asetukset", "Asetukset"},
    {"fr", "Réglages", "Préférences"},
    {"fr-ca", "Réglages", "Préférences"},
    {"he", "הגדרות", "העדפות"},
    {"hi", "सेटिंग", "प्राथमिकता"},
    {"hr", "Postavke", "Postavke"},
    {"hu", "Beállítások", "Beállítások"},
    {"id", "Pengaturan", "Preferensi"},
    {"it", "Impostazioni", "Preferenze"},
    {"ja", "設定", "環境設定"},
    {"ko", "설정", "환경설정"},
    {"ms", "Tetapan", "Keutamaan"},
    {"nb", "Innstillinger", "Valg"},
    {"nl", "Instellingen", "Voorkeuren"},
    {"no", "Innstillinger", "Valg"},
    {"pl", "Ustawienia", "Preferencje"},
    {"pt", "Definições", "Preferências"},
    {"pt-br", "Ajustes", "Preferências"},
    {"ro", "Configurări", "Preferințe"},
    {"ru", "Настройки", "Настройки"},
    {"sk", "Nastavenia", "Nastavenia"},
    {"sl", "Nastavitve", "Nastavitve"},
    {"sv", "Inställningar", "Inställningar"},
    {"th", "การตั้งค่า", "การตั้งค่า"},
    {"tr", "Ayarlar", "Tercihler"},
    {"uk", "Параметри", "Параметри"},
    {"vi", "Cài đặt", "Tùy chọn"},
    {"zh", "设置", "偏好设置"},
    {"zh-hk", "設定", "偏好設定"},
    {"zh-tw", "設定", "偏好設定"},
});

static_assert(std::ranges::is_sorted(table, {}, &Words::language));

// Absent for a language that the table lacks.
const Words* wordsOf(std::string_view language) {
  const auto* found = std::ranges::lower_bound(table, language, {}, &Words::language);
  return found != table.end() && found->language == language ? found : nullptr;
}

// Language and country, as the table writes them: "pt-br" of "pt_BR.UTF-8".
std::string normalized(std::string_view locale) {
  std::string code(locale.substr(0, locale.find_first_of(".@")));
  std::ranges::transform(code, code.begin(), [](char letter) {
    if (letter == '_') return '-';
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
  });
  return code;
}

}  // namespace

std::string_view settingsWord(std::string_view locale, int systemVersion) {
  const std::string code = normalized(locale);
  const Words* words = wordsOf(code);
  if (words == nullptr) words = wordsOf(std::string_view(code).substr(0, code.find('-')));
  if (words == nullptr) words = wordsOf(fallbackLanguage);
  return systemVersion >= firstVersionThatSaysSettings ? words->settings : words->preferences;
}

std::string singlePaneTitle(const ApplicationNames& names, std::string_view locale, int systemVersion) {
  std::string name = "<Unknown App Name>";
  for (const auto* candidate : {&names.executable, &names.name, &names.displayName}) {
    if (candidate->has_value()) name = **candidate;
  }
  return name + " " + std::string(settingsWord(locale, systemVersion));
}

}  // namespace settings::localization
