#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QTest>

#include "tests/gallery/SettingsStage.h"

namespace {

using Names = std::vector<std::string>;

class AppPickerView : public testing::Test {
 protected:
  void SetUp() override {
    for (const char* name : {"Editor", "Éclair", "Mail", "Music"})
      m_stage.install(name);
    m_stage.install("Web", "Browser");
  }

  void open() {
    m_stage.pickerView().requestActivate();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&m_stage.pickerView()));
    m_stage.loadApplications();
  }
  QQuickItem* item(const char* identifier) { return testsupport::find(m_stage.pickerView(), identifier); }
  Names rows() {
    Names names;
    for (const auto* name : testsupport::findAll(m_stage.pickerView(), "InstalledApplicationName"))
      names.push_back(name->property("text").toString().toStdString());
    return names;
  }
  std::string note() {
    const auto* note = item("AppPickerNote");
    return note == nullptr ? "none" : note->property("text").toString().toStdString();
  }
  void type(const char* text) {
    for (const char* letter = text; *letter != 0; ++letter)
      QTest::keyClick(&m_stage.pickerView(), *letter);
  }
  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(&m_stage.pickerView(), key, modifiers);
  }
  [[nodiscard]] QPoint middleOf(QQuickItem* item) const {
    return item->mapToScene(item->boundingRect().center()).toPoint();
  }
  QQuickItem* row(std::size_t index) {
    return testsupport::findAll(m_stage.pickerView(), "InstalledApplication").at(index);
  }
  std::string locationOf(const char* name) { return m_stage.locationOf(name).absoluteString(); }

  testsupport::SettingsStage m_stage;
};

TEST_F(AppPickerView, ListsTheApplicationsOnceTheyHaveBeenRead) {
  m_stage.pickerView();
  EXPECT_EQ(note(), "Looking for applications\u2026");

  m_stage.loadApplications();

  EXPECT_EQ(rows(), (Names{"Éclair", "Editor", "Mail", "Music", "Web"}));
  EXPECT_EQ(note(), "none");
}

TEST_F(AppPickerView, SaysThatThereAreNone) {
  testsupport::SettingsStage empty;
  empty.pickerView();
  empty.loadApplications();

  EXPECT_EQ(testsupport::find(empty.pickerView(), "AppPickerNote")->property("text").toString(),
            "No applications were found on this system.");
}

TEST_F(AppPickerView, FindsWhileTheUserTypes) {
  open();

  type("ec");
  EXPECT_EQ(rows(), Names{"Éclair"});
  press(Qt::Key_Backspace);
  EXPECT_EQ(rows(), (Names{"Éclair", "Editor", "Web", "Mail", "Music"})) << "the last two by their identifiers";
  press(Qt::Key_Backspace);
  type("browser");
  EXPECT_EQ(rows(), Names{"Web"});
}

TEST_F(AppPickerView, SaysThatNothingMatchesAndHasNothingToChoose) {
  open();

  type("zebra");

  EXPECT_EQ(note(), "No application matches \u201Czebra\u201D.");
  EXPECT_FALSE(item("AppPickerChoose")->isEnabled());
  press(Qt::Key_Return);
  EXPECT_EQ(m_stage.picked(), std::nullopt);
}

TEST_F(AppPickerView, ChoosesWithTheArrowsAndReturn) {
  open();

  press(Qt::Key_Down);
  press(Qt::Key_Down);
  press(Qt::Key_Up);
  press(Qt::Key_Return);

  EXPECT_EQ(m_stage.picked(), locationOf("Editor"));
}

TEST_F(AppPickerView, GoesToTheLastAndTheFirstRowByPages) {
  open();

  press(Qt::Key_PageDown);
  press(Qt::Key_Return);

  EXPECT_EQ(m_stage.picked(), locationOf("Web"));
}

TEST_F(AppPickerView, ChoosesWithADoubleClick) {
  open();

  QTest::mouseDClick(&m_stage.pickerView(), Qt::LeftButton, {}, middleOf(row(2)));

  EXPECT_EQ(m_stage.picked(), locationOf("Mail"));
}

TEST_F(AppPickerView, ChoosesTheClickedRowWithTheButton) {
  open();

  QTest::mouseClick(&m_stage.pickerView(), Qt::LeftButton, {}, middleOf(row(3)));
  EXPECT_EQ(m_stage.picked(), std::nullopt);
  QTest::mouseClick(&m_stage.pickerView(), Qt::LeftButton, {}, middleOf(item("AppPickerChoose")));

  EXPECT_EQ(m_stage.picked(), locationOf("Music"));
}

TEST_F(AppPickerView, ChoosesNoneWithEscape) {
  open();

  press(Qt::Key_Escape);

  EXPECT_EQ(m_stage.picked(), "");
}

TEST_F(AppPickerView, ChoosesNoneWithTheButton) {
  open();

  press(Qt::Key_Tab);
  press(Qt::Key_Return);

  EXPECT_EQ(m_stage.picked(), "");
}

TEST_F(AppPickerView, KeepsTheSelectedRowInView) {
  for (int number = 0; number < 40; ++number)
    m_stage.install("Zoo " + std::to_string(number));
  open();

  for (int count = 0; count < 20; ++count)
    press(Qt::Key_Down);

  const auto* list = item("AppPickerList");
  EXPECT_EQ(list->property("currentIndex").toInt(), 20);
  const auto selected = list->property("currentItem").value<QQuickItem*>()->mapRectToItem(list, QRectF(0, 0, 1, 48));
  EXPECT_GE(selected.top(), 0);
  EXPECT_LE(selected.bottom(), list->height());
}

TEST_F(AppPickerView, SearchesForWhatIsPasted) {
  m_stage.setClipboardText("  mus\n");
  open();

  press(Qt::Key_V, Qt::ControlModifier);

  EXPECT_EQ(rows(), Names{"Music"});
}

TEST_F(AppPickerView, SaysWhatItsControlsAre) {
  open();
  const auto spoken = [this](const char* name) { return QAccessible::queryAccessibleInterface(item(name)); };

  EXPECT_EQ(spoken("AppPickerSearchField")->text(QAccessible::Name), "Search applications");
  EXPECT_EQ(spoken("AppPickerList")->role(), QAccessible::List);
  EXPECT_EQ(spoken("InstalledApplication")->role(), QAccessible::ListItem);
  EXPECT_EQ(spoken("InstalledApplication")->text(QAccessible::Name), "Éclair");
  EXPECT_TRUE(spoken("InstalledApplication")->state().selected);
}

TEST_F(AppPickerView, KeepsTheModelsRules) {
  testsupport::InlineBackgroundQueue queue;
  testsupport::VirtualRunLoop runLoop;
  testsupport::FakeInstalledApplications installed;
  installed.install("a", "A");
  quillmonger::AppPickerViewModel viewModel({installed, queue, runLoop}, [](const auto&) {});
  quillmonger::AppPickerModel model(viewModel, [] { return std::string(); });
  const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);

  queue.run();
  runLoop.runPosted();
  model.select(-1);
  model.setSearchTerm("zebra");

  EXPECT_EQ(model.rowCount(), 0);
  EXPECT_EQ(model.selectedRow(), -1);
}

}  // namespace
