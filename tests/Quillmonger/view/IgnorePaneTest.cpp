#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QGuiApplication>
#include <QTest>
#include <ostream>

#include "Quillmonger/settings/SettingsKeys.h"
#include "tests/gallery/SettingsStage.h"

namespace {

namespace keys = quillmonger::keys;
using Names = std::vector<std::string>;

class IgnorePane : public testing::Test {
 protected:
  void SetUp() override {
    for (const char* name : {"Editor", "Mail", "Music", "Web", "Terminal", "Files", "Paint"})
      m_stage.install(name);
    m_stage.defaults().set(keys::ignoredApps, {});
  }

  void ignore(const Names& names) {
    m_stage.ignoredApps().removeApp(m_stage.ignoredApps().apps().value().front());
    for (const auto& name : names)
      m_stage.ignore(name);
  }
  void activate() {
    m_stage.pane("ignore").requestActivate();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&m_stage.pane("ignore")));
  }
  QQuickItem* item(const char* identifier) { return testsupport::find(m_stage.pane("ignore"), identifier); }
  QQuickItem* row(std::size_t index) { return testsupport::findAll(m_stage.pane("ignore"), "IgnoredApp").at(index); }
  Names rows() {
    Names names;
    for (const auto* name : testsupport::findAll(m_stage.pane("ignore"), "IgnoredAppName"))
      names.push_back(name->property("text").toString().toStdString());
    return names;
  }
  std::string selected() {
    const auto& app = m_stage.ignoredApps().selectedApp().value();
    return app ? app->name : "none";
  }
  void click(QQuickItem* on, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseClick(&m_stage.pane("ignore"), button, {}, on->mapToScene(on->boundingRect().center()).toPoint());
  }
  void press(Qt::Key key) { QTest::keyClick(&m_stage.pane("ignore"), key); }
  std::string focused() {
    const QQuickItem* item = m_stage.pane("ignore").activeFocusItem();
    return item == nullptr ? "none" : item->objectName().toStdString();
  }

  testsupport::SettingsStage m_stage;
};

TEST_F(IgnorePane, IsAsWideAsItsContentAndAsHighAsItNeeds) {
  EXPECT_EQ(m_stage.pane("ignore").width(), 480 + 2 * 30);
  EXPECT_GT(m_stage.pane("ignore").height(), 350);
  EXPECT_EQ(item("IgnoredAppsList")->height(), 200);
}

TEST_F(IgnorePane, WritesASwitchAtOnce) {
  click(item("IgnoreImagesToggle"));
  EXPECT_TRUE(m_stage.defaults()[keys::ignoreImages]);

  activate();
  item("IgnoreSensitiveToggle")->forceActiveFocus();
  press(Qt::Key_Space);
  EXPECT_FALSE(m_stage.defaults()[keys::ignoreSensitiveData]);
  press(Qt::Key_Return);
  EXPECT_TRUE(m_stage.defaults()[keys::ignoreSensitiveData]);
}

TEST_F(IgnorePane, TakesAClickOnASwitchsTitleForOneOnTheSwitch) {
  click(item("SwitchTitle"));

  EXPECT_FALSE(m_stage.defaults()[keys::ignoreSensitiveData]);
}

TEST_F(IgnorePane, SeesAtOnceWhatIsChangedElsewhere) {
  EXPECT_TRUE(item("IgnoreSensitiveToggle")->property("isOn").toBool());

  m_stage.defaults().set(keys::ignoreSensitiveData, false);
  m_stage.defaults().set(keys::ignoreImages, true);

  EXPECT_FALSE(item("IgnoreSensitiveToggle")->property("isOn").toBool());
  EXPECT_TRUE(item("IgnoreImagesToggle")->property("isOn").toBool());
}

TEST_F(IgnorePane, ListsTheApplicationsInTheOrderOfAdding) {
  ignore({"Mail", "Editor"});

  EXPECT_EQ(rows(), (Names{"Mail", "Editor"}));
}

TEST_F(IgnorePane, NamesAnApplicationThatIsNotThereByItsFile) { EXPECT_EQ(rows(), Names{"Keychain Access"}); }

TEST_F(IgnorePane, RemovesTheRowThatWasClickedWithTheMinusButton) {
  ignore({"Mail", "Editor"});
  m_stage.ignoredApps().selectedApp().set(std::nullopt);
  EXPECT_FALSE(item("RemoveAppButton")->isEnabled());

  click(row(0));
  click(item("RemoveAppButton"));

  EXPECT_EQ(rows(), Names{"Editor"});
  EXPECT_EQ(selected(), "Editor");
}

TEST_F(IgnorePane, AddsWhatThePickerGivesAndShowsItsRow) {
  ignore({"Mail", "Editor", "Music", "Web", "Terminal", "Files"});
  m_stage.pane("ignore");

  click(item("AddAppButton"));
  m_stage.picker().decide(m_stage.locationOf("Paint"));

  EXPECT_EQ(selected(), "Paint");
  const QQuickItem* list = item("IgnoredAppsList");
  const QRectF last = row(rows().size() - 1)->mapRectToItem(list, QRectF(0, 0, 1, 36));
  EXPECT_EQ(rows().back(), "Paint");
  EXPECT_LE(last.bottom(), 200);
}

TEST_F(IgnorePane, MovesTheSelectionWithTheArrowsAndRemovesWithDelete) {
  ignore({"Mail", "Editor", "Music"});
  activate();
  click(row(0));

  press(Qt::Key_Up);
  EXPECT_EQ(selected(), "Mail");
  press(Qt::Key_Down);
  press(Qt::Key_Down);
  press(Qt::Key_Down);
  EXPECT_EQ(selected(), "Music");
  press(Qt::Key_Delete);
  EXPECT_EQ(rows(), (Names{"Mail", "Editor"}));
  EXPECT_EQ(selected(), "Editor");
}

TEST_F(IgnorePane, KeepsTheArrowsForItsListInEveryWindow) {
  EXPECT_EQ(item("IgnoredAppsList")->property("ownKeys").toList(), (QVariantList{int(Qt::Key_Up), int(Qt::Key_Down)}));
}

TEST_F(IgnorePane, DeletesTheRowOfTheContextMenu) {
  ignore({"Mail", "Editor"});
  activate();

  click(row(0), Qt::RightButton);
  ASSERT_NE(item("ContextMenuEntry"), nullptr);
  click(item("ContextMenuEntry"));

  EXPECT_EQ(rows(), Names{"Editor"});
  EXPECT_EQ(item("ContextMenuEntry"), nullptr);
}

TEST_F(IgnorePane, OpensAndClosesTheContextMenuWithTheKeyboard) {
  ignore({"Mail", "Editor"});
  activate();
  click(row(0));

  press(Qt::Key_Menu);
  ASSERT_NE(item("ContextMenuEntry"), nullptr);
  press(Qt::Key_Escape);
  EXPECT_EQ(item("ContextMenuEntry"), nullptr);
  EXPECT_EQ(focused(), "IgnoredAppsList");
  press(Qt::Key_Menu);
  press(Qt::Key_Return);
  EXPECT_EQ(rows(), Names{"Editor"});
}

TEST_F(IgnorePane, ClosesTheContextMenuWithAClickElsewhere) {
  ignore({"Mail"});
  activate();
  click(row(0), Qt::RightButton);

  click(item("IgnoreImagesToggle"));

  EXPECT_EQ(item("ContextMenuEntry"), nullptr);
  EXPECT_FALSE(m_stage.defaults()[keys::ignoreImages]);
  EXPECT_EQ(rows(), Names{"Mail"});
}

TEST_F(IgnorePane, GivesTheKeyboardToOneControlAfterTheOther) {
  ignore({"Mail"});
  activate();

  Names order;
  for (int count = 0; count < 6; ++count) {
    press(Qt::Key_Tab);
    order.push_back(focused());
  }

  EXPECT_EQ(order, (Names{"SettingsToolbar", "IgnoreSensitiveToggle", "IgnoreImagesToggle", "IgnoredAppsList",
                          "AddAppButton", "RemoveAppButton"}));
}

TEST_F(IgnorePane, PutsTheSwitchesOnTheOtherSideInALanguageFromRightToLeft) {
  const double left = item("IgnoreImagesToggle")->mapToScene(QPointF()).x();
  QGuiApplication::setLayoutDirection(Qt::RightToLeft);
  testsupport::SettingsStage mirrored;
  const auto* control = testsupport::find(mirrored.pane("ignore"), "IgnoreImagesToggle");
  const double right = control->mapToScene(QPointF(control->width(), 0)).x();
  const double width = mirrored.pane("ignore").width();
  QGuiApplication::setLayoutDirection(Qt::LeftToRight);

  EXPECT_EQ(width - right, left);
}

struct Spoken {
  const char* item;
  QAccessible::Role role;
  const char* name;
};
void PrintTo(const Spoken& spoken, std::ostream* out) { *out << spoken.item; }

class IgnorePaneSays : public IgnorePane, public testing::WithParamInterface<Spoken> {};

TEST_P(IgnorePaneSays, WhatAControlIs) {
  ignore({"Mail"});
  QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(item(GetParam().item));

  ASSERT_NE(spoken, nullptr);
  EXPECT_EQ(spoken->role(), GetParam().role);
  EXPECT_EQ(spoken->text(QAccessible::Name).toStdString(), GetParam().name);
}

INSTANTIATE_TEST_SUITE_P(
    Controls, IgnorePaneSays,
    testing::Values(Spoken{"IgnoreSensitiveToggle", QAccessible::CheckBox, "Ignore sensitive copies"},
                    Spoken{"IgnoreImagesToggle", QAccessible::CheckBox, "Ignore pictures"},
                    Spoken{"IgnoredAppsList", QAccessible::List, "Ignored applications"},
                    Spoken{"IgnoredApp", QAccessible::ListItem, "Mail"},
                    Spoken{"AddAppButton", QAccessible::Button, "Add an application"},
                    Spoken{"RemoveAppButton", QAccessible::Button, "Remove the selected application"}),
    [](const auto& row) { return std::string(row.param.item); });

TEST_F(IgnorePane, KeepsTheModelsRules) {
  quillmonger::IgnoredAppsModel model(m_stage.ignoredApps());
  const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);

  ignore({"Mail", "Editor", "Music"});
  model.remove(1);
  model.remove(7);
  model.select(-1);

  EXPECT_EQ(model.rowCount(), 2);
  EXPECT_EQ(model.index(1).data(quillmonger::IgnoredAppsModel::nameRole), "Music");
  EXPECT_FALSE(model.index(0).data(Qt::DecorationRole).isValid());
}

}  // namespace
