#include <gtest/gtest.h>

#include <QColor>
#include <QQmlComponent>
#include <QQmlEngine>
#include <algorithm>
#include <cmath>
#include <memory>

#include "Quillmonger/resources/QmlModule.h"

namespace {

// As WCAG 2.1 defines them.
double luminance(const QColor& color) {
  const auto linear = [](double part) {
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor& first, const QColor& second) {
  const auto [darker, lighter] = std::minmax({luminance(first), luminance(second)});
  return (lighter + 0.05) / (darker + 0.05);
}

struct Pair {
  const char* text;
  const char* background;
};

class ThemeContrast : public testing::TestWithParam<std::tuple<bool, Pair>> {};

// 0 when there is no such theme.
double contrastOf(const std::tuple<bool, Pair>& row) {
  const auto& [isDark, pair] = row;
  QQmlEngine engine;
  quillmonger::resourcesview::registerTypes(engine);
  QQmlComponent component(&engine, QUrl("qrc:/qt-project.org/imports/Quillmonger/Resources/Theme.qml"));
  const std::unique_ptr<QObject> theme(component.createWithInitialProperties({{"isDark", isDark}}));
  if (!theme) return 0;
  return contrast(theme->property(pair.text).value<QColor>(), theme->property(pair.background).value<QColor>());
}

std::string nameOf(const testing::TestParamInfo<std::tuple<bool, Pair>>& row) {
  const Pair& pair = std::get<1>(row.param);
  return std::string(pair.text) + "_on_" + pair.background + (std::get<0>(row.param) ? "_dark" : "_light");
}

TEST_P(ThemeContrast, IsReadable) { EXPECT_GE(contrastOf(GetParam()), 4.5); }

// What is no text but must be seen.
class ThemeMark : public testing::TestWithParam<std::tuple<bool, Pair>> {};

TEST_P(ThemeMark, IsSeen) { EXPECT_GE(contrastOf(GetParam()), 3.0); }

INSTANTIATE_TEST_SUITE_P(
    Theme, ThemeContrast,
    testing::Combine(testing::Bool(),
                     testing::Values(Pair{"primary", "window"}, Pair{"secondary", "window"}, Pair{"tertiary", "window"},
                                     Pair{"accentColor", "window"}, Pair{"accentColor", "separator"},
                                     Pair{"selectedPrimary", "highlightColor"},
                                     Pair{"selectedSecondary", "highlightColor"},
                                     Pair{"selectedPrimary", "selectionColor"}, Pair{"primary", "separator"},
                                     Pair{"destructive", "separator"}, Pair{"primary", "field"},
                                     Pair{"secondary", "field"}, Pair{"tertiary", "field"})),
    nameOf);

INSTANTIATE_TEST_SUITE_P(Theme, ThemeMark,
                         testing::Combine(testing::Bool(),
                                          testing::Values(Pair{"scrollBar", "window"}, Pair{"accentColor", "field"},
                                                          Pair{"switchOff", "window"}, Pair{"selectionColor", "window"},
                                                          Pair{"selectionColor", "field"})),
                         nameOf);

}  // namespace
