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

TEST(BaseEventManager, EndsItsMonitorWithItself) {
  testsupport::FakeLocalEventMonitor keys;
  std::optional<DismissHandler> handler(std::in_place, keys);

  handler.reset();

  EXPECT_FALSE(keys.hasMonitors());
}

TEST(BaseEventManagerDeathTest, StopsTheProcessWithoutAHandlerOfItsSubclass) {
  testsupport::FakeLocalEventMonitor keys;
  BaseEventManager manager(keys);

  EXPECT_DEATH(keys.press(53), "Subclass must implement its own action handler");
}

}  // namespace
