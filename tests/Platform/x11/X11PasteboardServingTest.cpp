#include <chrono>
#include <memory>

#include "tests/Platform/x11/X11PasteboardFixture.h"

namespace testsupport {

TEST_F(X11PasteboardTest, OffersTextUnderEveryTextName) {
  ASSERT_TRUE(writeAndOwn("caf\xC3\xA9 \xE2\x82\xAC"));

  EXPECT_EQ(pasteWithXclip("UTF8_STRING"), "caf\xC3\xA9 \xE2\x82\xAC");
  EXPECT_EQ(pasteWithXclip("text/plain;charset=utf-8"), "caf\xC3\xA9 \xE2\x82\xAC");
  EXPECT_EQ(pasteWithXclip("text/plain"), "caf\xC3\xA9 \xE2\x82\xAC");
  SelectionClient client(m_display.name());
  EXPECT_EQ(client.ask("CLIPBOARD", "STRING")->bytes, "caf\xE9 ?");
}

TEST_F(X11PasteboardTest, ListsItsTypes) {
  ASSERT_TRUE(writeAndOwn("words"));

  EXPECT_EQ(pasteWithXclip("TARGETS"),
            "TARGETS\nTIMESTAMP\nMULTIPLE\ncom.ondalis.Quillmonger\nUTF8_STRING\n"
            "text/plain;charset=utf-8\ntext/plain\nTEXT\nSTRING\n");
}

TEST_F(X11PasteboardTest, RefusesWhatItDoesNotOffer) {
  ASSERT_TRUE(writeAndOwn("words"));
  SelectionClient client(m_display.name());

  EXPECT_EQ(client.ask("CLIPBOARD", "image/png"), std::nullopt);
}

TEST_F(X11PasteboardTest, TellsSinceWhenItOwns) {
  ASSERT_TRUE(writeAndOwn("words"));
  SelectionClient client(m_display.name());

  const auto time = client.ask("CLIPBOARD", "TIMESTAMP");

  ASSERT_TRUE(time);
  EXPECT_NE(time->numbers().front(), 0U);
}

TEST_F(X11PasteboardTest, AnswersSeveralQuestionsAtOnce) {
  ASSERT_TRUE(writeAndOwn("words"));
  SelectionClient client(m_display.name());

  const auto answers = client.askMultiple({"UTF8_STRING", "image/png", "STRING"});

  ASSERT_EQ(answers.size(), 3U);
  EXPECT_EQ(answers[0]->bytes, "words");
  EXPECT_EQ(answers[1], std::nullopt);
  EXPECT_EQ(answers[2]->bytes, "words");
}

TEST_F(X11PasteboardTest, SendsFiftyMegabytesInPieces) {
  const std::string text(50'000'000, 'x');
  ASSERT_TRUE(writeAndOwn(text));
  const auto start = std::chrono::steady_clock::now();

  const auto pasted = pasteWithXclip("UTF8_STRING");

  EXPECT_TRUE(pasted == text);
  const foundation::Seconds time = std::chrono::steady_clock::now() - start;
  std::cout << "50 MB to xclip: " << time.count() << " s\n";
}

TEST_F(X11PasteboardTest, ServesOthersWhileARequestorDiesInTheMiddle) {
  const std::string text(50'000'000, 'x');
  ASSERT_TRUE(writeAndOwn(text));
  auto dying = std::make_unique<SelectionClient>(m_display.name());
  ASSERT_TRUE(dying->takeFirstPieceOnly("UTF8_STRING"));

  dying.reset();

  SelectionClient other(m_display.name());
  const auto answer = other.ask("CLIPBOARD", "UTF8_STRING");
  ASSERT_TRUE(answer);
  EXPECT_TRUE(answer->bytes == text);
}

TEST_F(X11PasteboardTest, ServesOthersWhileARequestorStopsTaking) {
  const std::string text(50'000'000, 'x');
  ASSERT_TRUE(writeAndOwn(text));
  SelectionClient stopped(m_display.name());
  ASSERT_TRUE(stopped.takeFirstPieceOnly("UTF8_STRING"));

  SelectionClient other(m_display.name());
  const auto answer = other.ask("CLIPBOARD", "UTF8_STRING");

  ASSERT_TRUE(answer);
  EXPECT_TRUE(answer->bytes == text);
}

TEST_F(X11PasteboardTest, LosesTheClipboardToTheNextOwner) {
  ASSERT_TRUE(writeAndOwn("ours"));
  ASSERT_TRUE(advanceToNext());

  ChildProcess xclip = copyWithXclip("theirs");

  ASSERT_TRUE(advanceToNext());
  EXPECT_EQ(presentText(), "theirs");
  EXPECT_EQ(pasteWithXclip("UTF8_STRING"), "theirs");
}

TEST_F(X11PasteboardTest, TakesTheClipboardFromAnOwner) {
  ChildProcess xclip = copyWithXclip("theirs");
  ASSERT_TRUE(advanceToNext());

  ASSERT_TRUE(writeAndOwn("ours"));

  EXPECT_EQ(pasteWithXclip("UTF8_STRING"), "ours");
  ASSERT_TRUE(advanceToNext());
  EXPECT_EQ(presentText(), "ours");
}

TEST_F(X11PasteboardTest, TellsNoWrittenWindowUntilTheLatestWriteIsOnOffer) {
  const auto isOnOffer = [this] { return m_pasteboard->writtenWindow() == m_pasteboard->selectionWindow(); };
  ASSERT_TRUE(writeAndOwn("earlier"));
  ASSERT_TRUE(runUntil(isOnOffer));

  write("overtaken");
  EXPECT_EQ(m_pasteboard->writtenWindow(), 0U);
  write("later");
  ASSERT_TRUE(runUntil(isOnOffer));

  EXPECT_EQ(pasteWithXclip("UTF8_STRING"), "later");
}

TEST_F(X11PasteboardTest, TellsTheWindowInFrontAfterItsOwnWrite) {
  SelectionClient behind(m_display.name());
  SelectionClient target(m_display.name());
  behind.bringToFront("palette", "Palette");
  ASSERT_TRUE(writeAndOwn("ours"));

  target.bringToFront("editor", "Editor");

  ASSERT_TRUE(advanceToNext());
  EXPECT_EQ(m_pasteboard->frontmostAtPresentContent()->className, "Editor");
}

TEST_F(X11PasteboardTest, RefusesARequestThatNamesItsOwnWindow) {
  ASSERT_TRUE(writeAndOwn("first"));
  xcb_connection_t* connection = xcb_connect(m_display.name().c_str(), nullptr);
  platform::X11Atoms atoms(connection);
  xcb_convert_selection(connection, m_pasteboard->selectionWindow(), atoms.atom("CLIPBOARD"), atoms.atom("UTF8_STRING"),
                        atoms.atom("QUILLMONGER_TIME"), XCB_CURRENT_TIME);
  xcb_flush(connection);

  // The window still gets the events by which a write is timed.
  write("second");
  EXPECT_TRUE(runUntil([&] {
    m_pasteboard->advance();
    return presentText() == "second";
  }));
  xcb_disconnect(connection);
}

}  // namespace testsupport
