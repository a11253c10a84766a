#include "Quillmonger/resources/ColorNames.h"

#include <gtest/gtest.h>

#include <QQmlComponent>
#include <QQmlEngine>
#include <memory>

namespace {

using quillmonger::ColorNames;

TEST(ColorNames, NamesAColorByItsParts) { EXPECT_EQ(ColorNames().name(QColor(224, 122, 95)), "#e07a5f"); }

TEST(ColorNames, NamesHowMuchIsSeenThrough) { EXPECT_EQ(ColorNames().name(QColor(224, 122, 95, 128)), "#80e07a5f"); }

TEST(ColorNames, AreTheSameInAView) {
  QQmlEngine engine;
  QQmlComponent component(&engine);
  component.setData(
      "import QtQml\nimport Quillmonger.Resources\nQtObject { property string name: ColorNames.name('#e07a5f') }", {});

  const std::unique_ptr<QObject> object(component.create());

  ASSERT_NE(object, nullptr) << component.errorString().toStdString();
  EXPECT_EQ(object->property("name").toString(), "#e07a5f");
}

}  // namespace
