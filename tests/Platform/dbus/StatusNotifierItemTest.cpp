#include "Platform/dbus/StatusNotifierItem.h"

#include <gtest/gtest.h>

#include "tests/support/CapturedOutput.h"

namespace {

// With a tray it is tested in the whole program, by tests/endtoend.
TEST(StatusNotifierItem, HasNoButtonWithoutASessionBusAndSaysSoOnce) {
  const testsupport::CapturedOutput output;
  platform::StatusNotifierBar bar(QDBusConnection(QStringLiteral("no such bus")),
                                  [](const std::string& name) { return name; });

  const auto item = bar.statusItem();
  item->setMenu({{.title = "Quit"}});
  item->setImage("MenuBarImage");

  EXPECT_FALSE(item->hasButton());
  EXPECT_EQ(output.text(),
            "No tray shows the status item: until one starts, the command `quillmonger` does what its menu does.\n");
}

}  // namespace
