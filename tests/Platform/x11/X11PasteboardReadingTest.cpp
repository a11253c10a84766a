#include <xcb/xcb.h>

#include "tests/Platform/x11/X11PasteboardFixture.h"

namespace testsupport {

namespace {

using Request = HostileOwner::Request;

}  // namespace

TEST_F(X11PasteboardTest, ReadsWhatXclipCopies) {
  ChildProcess xclip = copyWithXclip("words");

  ASSERT_TRUE(advanceToNext());

  EXPECT_EQ(presentText(), "words");
}

TEST_F(X11PasteboardTest, DoesNotCountWhatIsOnTheClipboardAtFirst) {
  m_pasteboard.reset();
  HostileOwner before(m_display.name());
  before.answer("UTF8_STRING", give("before"));
  before.own();
  connect();
  ASSERT_TRUE(runUntil([&] { return before.requestedTargets().size() == 2; }));

  HostileOwner after(m_display.name());
  after.answer("UTF8_STRING", give("after"));
  after.own();

  ASSERT_TRUE(advanceToNext());
  EXPECT_EQ(presentText(), "after");
}

TEST_F(X11PasteboardTest, NeverAsksForTheBytesOfARejectedCopy) {
  HostileOwner owner(m_display.name());
  owner.answer("UTF8_STRING", give("hidden"));
  owner.answer("x-kde-passwordManagerHint", give("secret"));

  owner.own();

  ASSERT_TRUE(advanceToNext());
  EXPECT_TRUE(offers(quillmonger::pasteboardtype::concealed));
  EXPECT_EQ(m_pasteboard->pasteboardItems(), nullptr);
  EXPECT_EQ(owner.requestedTargets(), std::vector<std::string>{"TARGETS"});
}

TEST_F(X11PasteboardTest, AsksForNothingWhileIncognito) {
  m_pasteboard->setTypeFilter({.isIncognitoMode = true});
  HostileOwner owner(m_display.name());
  owner.answer("UTF8_STRING", give("hidden"));

  owner.own();

  ASSERT_TRUE(advanceToNext());
  EXPECT_EQ(owner.requestedTargets(), std::vector<std::string>{"TARGETS"});
}

TEST_F(X11PasteboardTest, NeverAsksForWhatAnOfficeProgramLinks) {
  HostileOwner owner(m_display.name());
  owner.answer("UTF8_STRING", give("cell"));
  owner.answer("application/x-openoffice-link;windows_formatname=\"Link\"", give("link"));
  owner.answer("image/png", give("rendered"));

  owner.own();

  ASSERT_TRUE(advanceToNext());
  EXPECT_EQ(owner.requestedTargets(), (std::vector<std::string>{"TARGETS", "UTF8_STRING"}));
}

TEST_F(X11PasteboardTest, AsksAnOwnerWithoutAListOfTypesForText) {
  HostileOwner owner(m_display.name());
  owner.answer("TARGETS", [](HostileOwner& self, const Request& request) { self.notify(request, XCB_ATOM_NONE); });
  owner.answer("STRING", give("caf\xE9"));

  owner.own();

  ASSERT_TRUE(advanceToNext());
  EXPECT_EQ(presentText(), "caf\xC3\xA9");
}

TEST_F(X11PasteboardTest, KeepsATypeThatIsNotAnsweredWithAnAbsentValue) {
  HostileOwner owner(m_display.name());
  owner.answer("UTF8_STRING", give("words"));
  owner.answer("text/html", [](HostileOwner& self, const Request& request) { self.notify(request, XCB_ATOM_NONE); });

  owner.own();

  ASSERT_TRUE(advanceToNext());
  EXPECT_TRUE(offers("public.html"));
  EXPECT_EQ(presentValue("public.html"), std::nullopt);
  EXPECT_EQ(presentText(), "words");
}

TEST_F(X11PasteboardTest, ReadsEachFileOfAList) {
  HostileOwner owner(m_display.name());
  owner.answer("text/uri-list", give("file:///a\r\nfile:///b\r\n"));

  owner.own();

  ASSERT_TRUE(advanceToNext());
  ASSERT_EQ(m_pasteboard->pasteboardItems()->items().size(), 2U);
  EXPECT_EQ(presentValue("public.file-url"), "file:///a");
}

TEST_F(X11PasteboardTest, TellsTheWindowThatWasInFront) {
  SelectionClient window(m_display.name());
  window.bringToFront("editor", "Editor");
  HostileOwner owner(m_display.name());
  owner.answer("UTF8_STRING", give("words"));

  owner.own();

  ASSERT_TRUE(advanceToNext());
  const auto identity = m_pasteboard->frontmostAtPresentContent();
  ASSERT_TRUE(identity);
  EXPECT_EQ(identity->window, window.window());
  EXPECT_EQ(identity->instanceName, "editor");
  EXPECT_EQ(identity->className, "Editor");
  EXPECT_EQ(identity->processId, 4711);
}

TEST_F(X11PasteboardTest, SurvivesAWindowInFrontThatIsGone) {
  std::make_unique<SelectionClient>(m_display.name())->bringToFront("gone", "Gone");
  HostileOwner owner(m_display.name());
  owner.answer("UTF8_STRING", give("words"));

  owner.own();

  ASSERT_TRUE(advanceToNext());
  EXPECT_EQ(presentText(), "words");
  EXPECT_EQ(m_pasteboard->frontmostAtPresentContent()->className, "");
}

TEST_F(X11PasteboardTest, ShowsAnEmptiedClipboardAsNothing) {
  HostileOwner owner(m_display.name());
  owner.answer("UTF8_STRING", give("words"));
  owner.own();
  ASSERT_TRUE(advanceToNext());

  owner.disown();

  ASSERT_TRUE(advanceToNext());
  EXPECT_TRUE(m_pasteboard->types().empty());
  EXPECT_EQ(m_pasteboard->pasteboardItems(), nullptr);
}

TEST_F(X11PasteboardTest, ReadsFiftyMegabytesFromXclip) {
  const std::string text(50'000'000, 'x');
  const auto start = std::chrono::steady_clock::now();
  ChildProcess xclip = copyWithXclip(text);

  ASSERT_TRUE(advanceToNext(foundation::Seconds(60)));

  const foundation::Seconds time = std::chrono::steady_clock::now() - start;
  EXPECT_EQ(presentText()->size(), text.size());
  EXPECT_LT(m_runLoop.longestTurn(), longestStall);
  RecordProperty("milliseconds", static_cast<int>(time.count() * 1000));
  std::cout << "50 MB from xclip, its start included: " << time.count() << " s\n";
}

}  // namespace testsupport
