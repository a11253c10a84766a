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

TEST_P(ThemeContrast, IsReadable) {
  const auto& [isDark, pair] = GetParam();
  QQmlEngine engine;
  quillmonger::resourcesview::registerTypes(engine);
  QQmlComponent component(&engine, QUrl("qrc:/qt-project.org/imports/Quillmonger/Resources/Theme.qml"));
  const std::unique_ptr<QObject> theme(component.createWithInitialProperties({{"isDark", isDark}}));
  ASSERT_NE(theme, nullptr) << component.errorString().toStdString();

  EXPECT_GE(contrast(theme->property(pair.text).value<QColor>(), theme->property(pair.background).value<QColor>()),
            4.5);
}

INSTANTIATE_TEST_SUITE_P(
    Theme, ThemeContrast,
    testing::Combine(testing::Bool(),
                     testing::Values(Pair{"primary", "window"}, Pair{"secondary", "window"}, Pair{"tertiary", "window"},
                                     Pair{"accentColor", "window"}, Pair{"selectedPrimary", "highlightColor"},
                                     Pair{"selectedSecondary", "highlightColor"}, Pair{"primary", "separator"},
                                     Pair{"primary", "field"}, Pair{"secondary", "field"}, Pair{"tertiary", "field"})),
    [](const testing::TestParamInfo<std::tuple<bool, Pair>>& row) {
      const Pair& pair = std::get<1>(row.param);
      return std::string(pair.text) + "_on_" + pair.background + (std::get<0>(row.param) ? "_dark" : "_light");
    });

}  // namespace
