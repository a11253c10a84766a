#include "Quillmonger/input/BaseEventManager.h"

#include <gtest/gtest.h>

#include <optional>
#include <vector>

#include "tests/support/FakeLocalEventMonitor.h"

namespace {

using namespace quillmonger;

class DismissHandler final : public BaseEventManager {
 public:
  explicit DismissHandler(LocalEventMonitoring& monitoring) : BaseEventManager(monitoring) {}
  bool handleAction(Action action, const KeyEvent& /*event*/) override {
    actions.push_back(action);
    return action == Action::dismiss;
  }
  std::vector<Action> actions;
};

TEST(BaseEventManager, SwallowsTheEventsThatItsHandlerConsumesAlone) {
  testsupport::FakeLocalEventMonitor keys;
  const DismissHandler handler(keys);

  EXPECT_TRUE(keys.press(53));
  EXPECT_FALSE(keys.press(0));

  EXPECT_EQ(handler.actions, (std::vector<Action>{Action::dismiss, Action::none}));
}

// What edits the search field unless Command is held.
TEST(BaseEventManager, LetsCommaAndDeleteWithoutCommandThroughToTheSearchField) {
  testsupport::FakeLocalEventMonitor keys;
  const DismissHandler handler(keys);

  EXPECT_FALSE(keys.press(43));
  EXPECT_FALSE(keys.press(51));

  EXPECT_EQ(handler.actions, (std::vector<Action>{Action::none, Action::none}));
}

TEST(BaseEventManager, HearsBothEdgesOfTheLeftOptionKey) {
  testsupport::FakeLocalEventMonitor keys;
  const DismissHandler handler(keys);

  keys.send({KeyEvent::Type::flagsChanged, 58, optionFlag});
  keys.send({KeyEvent::Type::flagsChanged, 58, 0});

  EXPECT_EQ(handler.actions, (std::vector<Action>{Action::optionChanged, Action::optionChanged}));
}

TEST(BaseEventManager, EndsItsMonitorWithItself) {
  testsupport::FakeLocalEventMonitor keys;
  std::optional<DismissHandler> handler(std::in_place, keys);

  handler.reset();

  EXPECT_FALSE(keys.hasMonitors());
  EXPECT_FALSE(keys.press(53)) << "an event without an owner passes";
}

TEST(BaseEventManagerDeathTest, StopsTheProcessWithoutAHandlerOfItsSubclass) {
  testsupport::FakeLocalEventMonitor keys;
  BaseEventManager manager(keys);

  EXPECT_DEATH(keys.press(53), "Subclass must implement its own action handler");
}

}  // namespace
