#include <gtest/gtest.h>

#include <optional>

#include "Settings/SegmentedControlStyleViewController.h"
#include "Settings/ToolbarItemStyleViewController.h"
#include "tests/Settings/FakePaneView.h"

namespace {

using settings::ToolbarItem;
using Segmented = settings::SegmentedControlStyleViewController;
using Toolbar = settings::ToolbarItemStyleViewController;

class StyleController : public testing::Test {
 protected:
  void SetUp() override {
    for (auto& pane : m_fakes.take())
      m_panes.push_back(std::make_unique<settings::PaneHostingController>(std::move(pane)));
  }

  testsupport::FakePanes m_fakes{{{100, 100}, {100, 100}}};
  settings::SettingsStyleController::Panes m_panes;
};

TEST_F(StyleController, OffersAnItemWithSymbolAndTitleForEachPane) {
  EXPECT_EQ(Toolbar(m_panes, Toolbar::Placement::leading).toolbar(),
            (std::vector<ToolbarItem>{{"first", "The first", {"icon/first", "Picture"}},
                                      {"second", "The second", {"icon/second", "Picture"}}}));
}

TEST_F(StyleController, NamesASegmentByItsIndex) {
  EXPECT_EQ(Segmented(m_panes).toolbar(),
            (std::vector<ToolbarItem>{{"segment-0", "The first", {}}, {"segment-1", "The second", {}}}));
}

TEST_F(StyleController, KeepsTheWindowsMiddleWhenItCentresTheItems) {
  EXPECT_TRUE(Segmented(m_panes).isKeepingWindowCentered());
  EXPECT_TRUE(Toolbar(m_panes, Toolbar::Placement::centered).isKeepingWindowCentered());
  EXPECT_FALSE(Toolbar(m_panes, Toolbar::Placement::leading).isKeepingWindowCentered());
}

TEST_F(StyleController, TellsItsDelegateOfAChosenItemThatIsThere) {
  Segmented controller(m_panes);
  std::optional<std::size_t> chosen;
  controller.choose(0);
  controller.delegate = [&chosen](std::size_t pane) { chosen = pane; };

  controller.choose(2);
  EXPECT_EQ(chosen, std::nullopt);
  controller.choose(1);
  EXPECT_EQ(chosen, 1);
}

}  // namespace
