#include "Platform/x11/XSettings.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using platform::xSettingsNumber;

std::string bigEndian(std::uint32_t value, int width) {
  std::string digits;
  for (int place = width - 1; place >= 0; --place)
    digits.push_back(static_cast<char>(value >> (8 * place)));
  return digits;
}

std::string head(char kind, const std::string& name) {
  std::string entry{kind, '\0'};
  entry += bigEndian(static_cast<std::uint32_t>(name.size()), 2) + name;
  entry.append((4 - name.size() % 4) % 4, '\0');
  return entry + bigEndian(7, 4);
}

const std::string theme = head(1, "Net/ThemeName") + bigEndian(7, 4) + "Adwaita" + std::string(1, '\0');
const std::string background = head(2, "Background") + std::string(8, 'x');
const std::string animations = head(0, "Gtk/EnableAnimations") + bigEndian(0, 4);

std::string settings(std::uint32_t count, const std::string& entries) {
  return std::string{'\1', '\0', '\0', '\0'} + bigEndian(1, 4) + bigEndian(count, 4) + entries;
}

TEST(XSettings, FindsANumberAmongOtherSettings) {
  EXPECT_EQ(xSettingsNumber(settings(3, theme + background + animations), "Gtk/EnableAnimations"), 0);
}

TEST(XSettings, ReadsTheOtherByteOrder) {
  const std::string reversed("\0\0\0\0\1\0\0\0\1\0\0\0\0\0\4\0Size\1\0\0\0\x2A\0\0\0", 28);

  EXPECT_EQ(xSettingsNumber(reversed, "Size"), 42);
}

TEST(XSettings, HasNoNumberForAMissingNameOrAText) {
  EXPECT_EQ(xSettingsNumber(settings(2, theme + background), "Gtk/EnableAnimations"), std::nullopt);
  EXPECT_EQ(xSettingsNumber(settings(1, theme), "Net/ThemeName"), std::nullopt);
}

TEST(XSettings, HasNoNumberWhereverTheSettingsAreCutOff) {
  const std::string whole = settings(3, theme + background + animations);
  for (std::size_t length = 0; length < whole.size(); ++length)
    EXPECT_EQ(xSettingsNumber(std::string_view(whole).substr(0, length), "Gtk/EnableAnimations"), std::nullopt)
        << length;
}

TEST(XSettings, StopsAtASettingOfAnUnknownKindAndAtTheLimit) {
  EXPECT_EQ(xSettingsNumber(settings(2, head(9, "Odd") + animations), "Gtk/EnableAnimations"), std::nullopt);
  EXPECT_EQ(xSettingsNumber(settings(3, theme + background + animations), "Gtk/EnableAnimations", 2), std::nullopt);
}

TEST(XSettings, DoesNotBelieveACountOrALengthThatIsTooLarge) {
  EXPECT_EQ(xSettingsNumber(settings(0xFFFFFFFF, theme), "Gtk/EnableAnimations"), std::nullopt);
  EXPECT_EQ(
      xSettingsNumber(settings(2, head(1, "Long") + bigEndian(0xFFFFFFFF, 4) + animations), "Gtk/EnableAnimations"),
      std::nullopt);
}

}  // namespace
