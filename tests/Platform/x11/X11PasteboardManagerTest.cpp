#include "tests/Platform/x11/X11PasteboardFixture.h"

namespace testsupport {

namespace {

/// The part of the desktop's clipboard manager.
class X11PasteboardManager : public X11PasteboardTest {
 protected:
  [[nodiscard]] bool isSavingAnswered() {
    SelectionClient quitting(m_display.name());
    const bool isManaged = runUntil([&] { return quitting.owner("CLIPBOARD_MANAGER") != XCB_WINDOW_NONE; });
    EXPECT_TRUE(isManaged);
    return quitting.ask("CLIPBOARD_MANAGER", "SAVE_TARGETS").has_value();
  }
};

}  // namespace

TEST_F(X11PasteboardManager, OffersOnWhatAProgramLeavesBehind) {
  HostileOwner owner(m_display.name());
  owner.answer("UTF8_STRING", give("words"));
  owner.answer("text/html", give("<p>words"));
  owner.own();
  ASSERT_TRUE(advanceToNext());

  owner.quit();

  ASSERT_TRUE(ownsClipboard());
  SelectionClient client(m_display.name());
  EXPECT_EQ(client.ask("CLIPBOARD", "UTF8_STRING")->bytes, "words");
  EXPECT_EQ(client.ask("CLIPBOARD", "text/html")->bytes, "<p>words");
}

TEST_F(X11PasteboardManager, DoesNotCountOfferingOnAsAChange) {
  HostileOwner owner(m_display.name());
  owner.answer("UTF8_STRING", give("left behind"));
  owner.own();
  ASSERT_TRUE(advanceToNext());
  owner.quit();
  ASSERT_TRUE(ownsClipboard());

  HostileOwner next(m_display.name());
  next.answer("UTF8_STRING", give("next"));
  next.own();

  ASSERT_TRUE(advanceToNext());
  EXPECT_EQ(presentText(), "next");
}

TEST_F(X11PasteboardManager, OffersOnWhatWasThereBeforeIt) {
  m_pasteboard.reset();
  HostileOwner owner(m_display.name());
  owner.answer("UTF8_STRING", give("before"));
  owner.own();
  connect();
  ASSERT_TRUE(runUntil([&] { return owner.requestedTargets().size() == 2; }));

  owner.quit();

  ASSERT_TRUE(ownsClipboard());
  EXPECT_EQ(pasteWithXclip("UTF8_STRING"), "before");
}

TEST_F(X11PasteboardManager, NeverOffersOnARejectedCopy) {
  HostileOwner owner(m_display.name());
  owner.answer("UTF8_STRING", give("hidden"));
  owner.answer("x-kde-passwordManagerHint", give("secret"));
  owner.own();
  ASSERT_TRUE(advanceToNext());

  owner.quit();

  // What is copied next is handled after what became of the secret.
  SelectionClient client(m_display.name());
  HostileOwner next(m_display.name());
  EXPECT_EQ(client.owner("CLIPBOARD"), static_cast<xcb_window_t>(XCB_WINDOW_NONE));
  next.answer("UTF8_STRING", give("next"));
  next.own();
  ASSERT_TRUE(advanceToNext());
  EXPECT_EQ(presentText(), "next");
}

TEST_F(X11PasteboardManager, LeavesAnEmptiedClipboardEmpty) {
  HostileOwner owner(m_display.name());
  owner.answer("UTF8_STRING", give("words"));
  owner.own();
  ASSERT_TRUE(advanceToNext());

  owner.disown();
  ASSERT_TRUE(advanceToNext());
  owner.quit();

  SelectionClient client(m_display.name());
  EXPECT_EQ(client.owner("CLIPBOARD"), static_cast<xcb_window_t>(XCB_WINDOW_NONE));
}

TEST_F(X11PasteboardManager, KeepsTheContentOfAProgramThatAsksForIt) {
  HostileOwner owner(m_display.name());
  owner.answer("UTF8_STRING", give("words"));
  owner.own();

  ASSERT_TRUE(isSavingAnswered());

  owner.quit();
  ASSERT_TRUE(ownsClipboard());
  EXPECT_EQ(pasteWithXclip("UTF8_STRING"), "words");
}

TEST_F(X11PasteboardManager, AnswersTheSavingOnlyWhenAllIsRead) {
  HostileOwner owner(m_display.name());
  owner.answer("UTF8_STRING", [](HostileOwner& self, const HostileOwner::Request& request) {
    auto left = std::make_shared<int>(2'000);
    self.stream(request, [left]() -> std::optional<std::string> {
      return (*left)-- > 0 ? std::string(1000, 's') : std::string();
    });
  });
  owner.own();

  ASSERT_TRUE(isSavingAnswered());

  owner.quit();
  ASSERT_TRUE(ownsClipboard());
  EXPECT_EQ(pasteWithXclip("UTF8_STRING")->size(), 2'000'000U);
}

TEST_F(X11PasteboardManager, RefusesToSaveARejectedCopy) {
  HostileOwner owner(m_display.name());
  owner.answer("UTF8_STRING", give("hidden"));
  owner.answer("x-kde-passwordManagerHint", give("secret"));
  owner.own();

  EXPECT_FALSE(isSavingAnswered());
}

TEST_F(X11PasteboardManager, LeavesThePartAloneWhenItWatchesAnotherSelection) {
  SelectionClient client(m_display.name());
  m_pasteboard.reset();
  ASSERT_TRUE(runUntil([&] { return client.owner("CLIPBOARD_MANAGER") == XCB_WINDOW_NONE; }));

  m_pasteboard = platform::X11Pasteboard::connect(m_runLoop, {}, m_display.name(), "ui-testing");
  write("words");
  ASSERT_TRUE(runUntil([&] { return client.owner("ui-testing") == m_pasteboard->selectionWindow(); }));

  EXPECT_EQ(client.owner("CLIPBOARD_MANAGER"), static_cast<xcb_window_t>(XCB_WINDOW_NONE));
}

TEST_F(X11PasteboardManager, LeavesThePartToAnotherManager) {
  SelectionClient client(m_display.name());
  ASSERT_TRUE(runUntil([&] { return client.owner("CLIPBOARD_MANAGER") == m_pasteboard->selectionWindow(); }));

  auto second = platform::X11Pasteboard::connect(m_runLoop, quillmonger::TypeFilter(), m_display.name());
  second->clearContents();
  ASSERT_TRUE(runUntil([&] { return client.owner("CLIPBOARD") == second->selectionWindow(); }));

  EXPECT_EQ(client.owner("CLIPBOARD_MANAGER"), m_pasteboard->selectionWindow());
  EXPECT_EQ(client.targets("CLIPBOARD_MANAGER"), (std::vector<std::string>{"TARGETS", "TIMESTAMP", "SAVE_TARGETS"}));
}

}  // namespace testsupport
