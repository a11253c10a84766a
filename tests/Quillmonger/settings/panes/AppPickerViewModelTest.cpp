#include "Quillmonger/settings/panes/AppPickerViewModel.h"

#include <gtest/gtest.h>

#include "tests/support/FakeInstalledApplications.h"
#include "tests/support/InlineBackgroundQueue.h"
#include "tests/support/VirtualRunLoop.h"

namespace {

using quillmonger::AppPickerViewModel;
using Names = std::vector<std::string>;

class AppPickerViewModelTest : public testing::Test {
 protected:
  AppPickerViewModelTest() {
    for (const char* name : {"Calendar", "Editor", "Mail", "Music"})
      installed.install(std::string("org.example.") + name, name);
    model = std::make_unique<AppPickerViewModel>(AppPickerViewModel::Collaborators{installed, queue, runLoop},
                                                 [this](const auto& url) {
                                                   ++endCount;
                                                   chosen = url ? url->absoluteString() : "none";
                                                 });
  }

  void load() {
    queue.run();
    runLoop.runPosted();
  }
  Names names() {
    Names names;
    for (const auto& application : model->applications().value())
      names.push_back(application->name);
    return names;
  }

  testsupport::FakeInstalledApplications installed;
  testsupport::InlineBackgroundQueue queue;
  testsupport::VirtualRunLoop runLoop;
  int endCount = 0;
  std::string chosen;
  std::unique_ptr<AppPickerViewModel> model;
};

TEST_F(AppPickerViewModelTest, IsEmptyUntilTheApplicationsHaveBeenRead) {
  EXPECT_TRUE(model->isLoading().value());
  EXPECT_EQ(names(), Names{});
  EXPECT_EQ(model->selectedRow().value(), std::nullopt);

  load();

  EXPECT_FALSE(model->isLoading().value());
  EXPECT_EQ(names(), (Names{"Calendar", "Editor", "Mail", "Music"}));
  EXPECT_EQ(model->selectedRow().value(), 0U);
}

TEST_F(AppPickerViewModelTest, FindsWhatWasTypedBeforeTheApplicationsHadBeenRead) {
  model->setSearchTerm("mu");

  load();

  EXPECT_EQ(names(), Names{"Music"});
}

TEST_F(AppPickerViewModelTest, SelectsTheFirstRowAfterEachSearchAndNoneWithoutRows) {
  load();
  model->select(3);

  model->setSearchTerm("m");
  EXPECT_EQ(model->selectedRow().value(), 0U);
  model->setSearchTerm("zebra");
  EXPECT_EQ(model->selectedRow().value(), std::nullopt);
}

TEST_F(AppPickerViewModelTest, MovesTheSelectionNoFurtherThanToTheFirstAndTheLastRow) {
  load();

  model->moveSelection(2);
  EXPECT_EQ(model->selectedRow().value(), 2U);
  model->moveSelection(8);
  EXPECT_EQ(model->selectedRow().value(), 3U);
  model->moveSelection(-100);
  EXPECT_EQ(model->selectedRow().value(), 0U);
}

TEST_F(AppPickerViewModelTest, MovesNothingWithoutRows) {
  model->moveSelection(1);
  model->select(0);

  EXPECT_EQ(model->selectedRow().value(), std::nullopt);
}

TEST_F(AppPickerViewModelTest, EndsWithTheSelectedApplication) {
  load();
  model->select(2);

  model->choose();

  EXPECT_EQ(chosen, "file:///usr/share/applications/org.example.Mail.desktop");
}

TEST_F(AppPickerViewModelTest, GoesOnWhenThereIsNothingToChoose) {
  model->choose();
  load();
  model->setSearchTerm("zebra");
  model->choose();

  EXPECT_EQ(endCount, 0);
}

TEST_F(AppPickerViewModelTest, EndsOnce) {
  load();

  model->cancel();
  model->choose();
  model->cancel();

  EXPECT_EQ(endCount, 1);
  EXPECT_EQ(chosen, "none");
}

TEST_F(AppPickerViewModelTest, MayEndWithinItsCompletion) {
  std::optional<std::string> location;
  model = std::make_unique<AppPickerViewModel>(AppPickerViewModel::Collaborators{installed, queue, runLoop},
                                               [this, &location](const auto& url) {
                                                 model.reset();
                                                 location = url->absoluteString();
                                               });
  load();

  model->choose();

  EXPECT_EQ(location, "file:///usr/share/applications/org.example.Calendar.desktop");
}

TEST_F(AppPickerViewModelTest, ForgetsWhatIsReadAfterItsEnd) {
  queue.run();
  model.reset();

  runLoop.runPosted();

  EXPECT_EQ(endCount, 0);
}

}  // namespace
