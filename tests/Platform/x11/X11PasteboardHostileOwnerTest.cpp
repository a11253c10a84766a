#include <xcb/xcb.h>

#include <chrono>
#include <memory>
#include <set>
#include <string>
#include <utility>

#include "Platform/x11/X11Reply.h"
#include "tests/Platform/x11/X11PasteboardFixture.h"

namespace testsupport {

namespace {

using Request = HostileOwner::Request;
using Clock = std::chrono::steady_clock;

/// Under each test here: however the owner behaves, the main loop goes on.
class X11PasteboardHostileOwner : public X11PasteboardTest {
 protected:
  void TearDown() override {
    X11PasteboardTest::TearDown();
    EXPECT_LT(m_runLoop.longestTurn(), longestStall);
    std::cout << "longest stall of the main loop: " << m_runLoop.longestTurn().count() * 1000 << " ms\n";
  }

  // A good copy comes through, quickly, whatever the owner before it is up to.
  void expectGoodCopy(std::string_view text = "good") {
    HostileOwner good(m_display.name());
    good.answer("UTF8_STRING", give(std::string(text)));
    good.own();
    EXPECT_TRUE(runUntil([&] {
      m_pasteboard->advance();
      return presentText() == text;
    }));
  }

  // Of all programs on the display: each reading has one of its own.
  [[nodiscard]] std::size_t windowCount() const {
    const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> connection(
        xcb_connect(m_display.name().c_str(), nullptr), &xcb_disconnect);
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection.get())).data->root;
    const platform::X11Reply<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(connection.get(), xcb_query_tree(connection.get(), root), nullptr));
    return tree ? tree->children_len : 0;
  }

  // Lets the content stand for long enough to count.
  void letStand() {
    const auto start = Clock::now();
    EXPECT_TRUE(runUntil([&] { return Clock::now() - start > platform::Succession::shortestStand; }));
  }

  static HostileOwner::Handler giveRaw(xcb_atom_t type, std::uint8_t format, std::string bytes) {
    return [=](HostileOwner& owner, const Request& request) {
      owner.put(request, type, format, bytes);
      owner.notify(request, request.property);
    };
  }

  static HostileOwner::Handler streamOf(std::size_t count, std::size_t size, bool hasEnd) {
    return [=](HostileOwner& owner, const Request& request) {
      auto left = std::make_shared<std::size_t>(count);
      owner.stream(request, [=]() -> std::optional<std::string> {
        if (*left == 0) return hasEnd ? std::optional(std::string()) : std::nullopt;
        --*left;
        return std::string(size, 'x');
      });
    };
  }
};

}  // namespace

TEST_F(X11PasteboardHostileOwner, ThatNeverAnswersHoldsUpNothing) {
  HostileOwner silent(m_display.name());
  silent.answer("TARGETS", staySilent());
  silent.own();
  ASSERT_TRUE(runUntil([&] { return !silent.requestedTargets().empty(); }));
  letStand();

  const auto start = Clock::now();
  expectGoodCopy();

  EXPECT_LT(Clock::now() - start, std::chrono::milliseconds(500));
}

TEST_F(X11PasteboardHostileOwner, ThatDropsTheFirstQuestionForItsTypesIsAskedAgain) {
  HostileOwner owner(m_display.name());
  owner.answer("TARGETS", [isFirst = true](HostileOwner& self, const Request& request) mutable {
    if (std::exchange(isFirst, false)) return;
    const xcb_atom_t text = self.atom("UTF8_STRING");
    self.put(request, XCB_ATOM_ATOM, 32, std::string_view(reinterpret_cast<const char*>(&text), sizeof text));
    self.notify(request, request.property);
  });
  owner.answer("UTF8_STRING", give("words"));

  owner.own();

  ASSERT_TRUE(advanceToNext());
  EXPECT_EQ(presentText(), "words");
  const std::vector<std::string> asked = {"TARGETS", "TARGETS", "UTF8_STRING"};
  EXPECT_EQ(owner.requestedTargets(), asked);
}

TEST_F(X11PasteboardHostileOwner, ThatDropsAQuestionForBytesIsAskedAgain) {
  HostileOwner owner(m_display.name());
  owner.answer("UTF8_STRING",
               [isFirst = true, words = give("words")](HostileOwner& self, const Request& request) mutable {
                 if (!std::exchange(isFirst, false)) words(self, request);
               });
  owner.answer("text/html", give("<b>words</b>"));

  owner.own();

  ASSERT_TRUE(advanceToNext());
  EXPECT_EQ(presentText(), "words");
  EXPECT_EQ(presentValue("public.html"), "<b>words</b>");
}

TEST_F(X11PasteboardHostileOwner, ThatNeverGivesItsBytesHoldsUpNothing) {
  HostileOwner silent(m_display.name());
  silent.answer("UTF8_STRING", staySilent());
  silent.own();
  ASSERT_TRUE(runUntil([&] { return silent.requestedTargets().size() == 2; }));
  letStand();

  const auto start = Clock::now();
  expectGoodCopy();

  EXPECT_LT(Clock::now() - start, std::chrono::milliseconds(500));
}

TEST_F(X11PasteboardHostileOwner, ThatStopsAnsweringIsGivenUp) {
  HostileOwner owner(m_display.name());
  owner.answer("UTF8_STRING", give("words"));
  owner.answer("text/html", staySilent());

  owner.own();

  ASSERT_TRUE(advanceToNext());
  EXPECT_EQ(presentText(), "words");
  EXPECT_TRUE(offers("public.html"));
  EXPECT_EQ(presentValue("public.html"), std::nullopt);
}

TEST_F(X11PasteboardHostileOwner, ThatSendsItsTypesAsTextIsAskedForText) {
  HostileOwner owner(m_display.name());
  owner.answer("TARGETS", giveRaw(XCB_ATOM_STRING, 8, "nonsense"));
  owner.answer("UTF8_STRING", give("words"));

  owner.own();

  ASSERT_TRUE(advanceToNext());
  EXPECT_EQ(presentText(), "words");
}

TEST_F(X11PasteboardHostileOwner, ThatOffersNumbersThatAreNoNamesOffersNothing) {
  HostileOwner owner(m_display.name());
  owner.answer("TARGETS", giveRaw(XCB_ATOM_ATOM, 32, std::string(4'000'000, '\xFF')));
  owner.answer("UTF8_STRING", give("words"));

  owner.own();

  ASSERT_TRUE(advanceToNext());
  EXPECT_EQ(presentText(), "words");
}

TEST_F(X11PasteboardHostileOwner, ThatGivesNumbersForTextGivesNothing) {
  HostileOwner owner(m_display.name());
  owner.answer("UTF8_STRING", giveRaw(XCB_ATOM_STRING, 32, "12345678"));
  owner.answer("text/html", giveRaw(XCB_ATOM_INTEGER, 8, "12345678"));
  owner.answer("text/rtf", give("{\\rtf1}"));

  owner.own();

  ASSERT_TRUE(advanceToNext());
  EXPECT_EQ(presentText(), std::nullopt);
  EXPECT_EQ(presentValue("public.html"), std::nullopt);
  EXPECT_EQ(presentValue("public.rtf"), "{\\rtf1}");
}

TEST_F(X11PasteboardHostileOwner, ThatGivesIllFormedTextGivesNothing) {
  HostileOwner owner(m_display.name());
  owner.answer("UTF8_STRING", give("\xFF\xFE broken"));
  owner.answer("text/rtf", give("{\\rtf1}"));

  owner.own();

  ASSERT_TRUE(advanceToNext());
  EXPECT_EQ(presentText(), std::nullopt);
}

TEST_F(X11PasteboardHostileOwner, ThatPointsToAPropertyThatIsNotThereGivesNothing) {
  HostileOwner owner(m_display.name());
  owner.answer("UTF8_STRING", give("words"));
  owner.answer("text/html", [](HostileOwner& self, const Request& request) { self.notify(request, request.property); });

  owner.own();

  ASSERT_TRUE(advanceToNext());
  EXPECT_EQ(presentText(), "words");
  EXPECT_EQ(presentValue("public.html"), std::nullopt);
}

TEST_F(X11PasteboardHostileOwner, ThatSendsHalfAValueGivesNothing) {
  HostileOwner owner(m_display.name());
  owner.answer("UTF8_STRING", give("words"));
  owner.answer("text/html", streamOf(3, 1000, false));

  owner.own();

  ASSERT_TRUE(advanceToNext());
  EXPECT_EQ(presentText(), "words");
  EXPECT_EQ(presentValue("public.html"), std::nullopt);
}

TEST_F(X11PasteboardHostileOwner, ThatDiesInTheMiddleLeavesWhatWasRead) {
  HostileOwner owner(m_display.name());
  owner.answer("UTF8_STRING", give("words"));
  owner.answer("text/html", [](HostileOwner& self, const Request& request) {
    auto isBroken = std::make_shared<bool>(false);
    self.stream(request, [&self, isBroken]() -> std::optional<std::string> {
      if (std::exchange(*isBroken, true)) {
        self.breakConnection();
        return std::nullopt;
      }
      return "<p>half";
    });
  });

  owner.own();

  ASSERT_TRUE(advanceToNext(foundation::Seconds(1.5)));
  EXPECT_EQ(presentText(), "words");
  EXPECT_EQ(presentValue("public.html"), std::nullopt);
}

TEST_F(X11PasteboardHostileOwner, ThatSendsTwoHundredMegabytesIsReadInFull) {
  HostileOwner owner(m_display.name());
  owner.answer("UTF8_STRING", streamOf(200, 1'000'000, true));

  owner.own();

  ASSERT_TRUE(advanceToNext(foundation::Seconds(60)));
  EXPECT_EQ(m_pasteboard->pasteboardItems()->items().front().dataForType("public.utf8-plain-text")->size(),
            200'000'000U);
}

TEST_F(X11PasteboardHostileOwner, ThatStreamsWithoutEndHoldsUpNothing) {
  HostileOwner endless(m_display.name());
  endless.answer("UTF8_STRING", streamOf(SIZE_MAX, 1000, false));
  endless.own();
  ASSERT_TRUE(runUntil([&] { return endless.requestedTargets().size() == 2; }));
  letStand();

  expectGoodCopy();
}

TEST_F(X11PasteboardHostileOwner, ThatIsSlowComesAfterTheNewerContent) {
  HostileOwner slow(m_display.name());
  // About a second for the whole, by pieces that come each in time.
  slow.answer("UTF8_STRING", [](HostileOwner& self, const Request& request) {
    auto left = std::make_shared<int>(5'000);
    self.stream(request, [left]() -> std::optional<std::string> {
      return (*left)-- > 0 ? std::string(40, 's') : std::string();
    });
  });
  slow.own();
  ASSERT_TRUE(runUntil([&] { return slow.requestedTargets().size() == 2; }));
  letStand();

  expectGoodCopy();

  EXPECT_TRUE(runUntil([&] {
    m_pasteboard->advance();
    const auto text = presentText();
    return text && text->size() == 200'000;
  }));
}

TEST_F(X11PasteboardHostileOwner, ThatIsSlowLeavesNothingBehindOfWhatWaitedForIt) {
  expectGoodCopy();
  const std::size_t before = windowCount();
  for (const std::size_t pieces : {5'000UL, 5'001UL, 5'002UL}) {
    HostileOwner slow(m_display.name());
    slow.answer("UTF8_STRING", streamOf(pieces, 40, true));
    slow.own();
    ASSERT_TRUE(runUntil([&] { return slow.requestedTargets().size() == 2; }));
    letStand();
    HostileOwner waiting(m_display.name());
    waiting.answer("UTF8_STRING", give("waiting"));
    waiting.own();
    ASSERT_TRUE(runUntil([&] { return waiting.requestedTargets().size() == 2; }));
    letStand();
    HostileOwner last(m_display.name());
    last.answer("UTF8_STRING", give("last"));
    last.own();
    std::set<std::size_t> sizes;
    ASSERT_TRUE(runUntil([&] {
      m_pasteboard->advance();
      sizes.insert(presentText().value_or("").size());
      return sizes.contains(4) && sizes.contains(pieces * 40);
    }));
  }

  expectGoodCopy();

  EXPECT_TRUE(runUntil([&] { return windowCount() <= before; }, foundation::Seconds(5)));
}

TEST_F(X11PasteboardHostileOwner, ThatAnswersForItsSuccessorIsNotConfusedWithIt) {
  HostileOwner first(m_display.name());
  first.answer("UTF8_STRING", give("first"));
  first.answer("text/html", staySilent());
  first.own();
  ASSERT_TRUE(runUntil([&] { return first.requestedTargets().size() == 3; }));
  letStand();

  HostileOwner second(m_display.name());
  second.answer("UTF8_STRING", give("second"));
  second.answer("text/html", give("<p>second"));
  second.own();

  ASSERT_TRUE(advanceToNext());
  EXPECT_EQ(presentText(), "first");
  EXPECT_EQ(presentValue("public.html"), std::nullopt);
  ASSERT_TRUE(advanceToNext());
  EXPECT_EQ(presentText(), "second");
  EXPECT_EQ(presentValue("public.html"), "<p>second");
}

namespace {

/// Owners that follow each other faster than the monitor polls.
class X11PasteboardQuickOwners : public X11PasteboardHostileOwner {
 protected:
  // The texts in the order in which they became present, until the last one has.
  [[nodiscard]] std::vector<std::string> texts(HostileOwner& owner, const std::string& last) {
    std::vector<std::string> result;
    EXPECT_TRUE(runUntil(
        [&] {
          const auto count = m_pasteboard->changeCount();
          m_pasteboard->advance();
          if (m_pasteboard->changeCount() != count) result.push_back(presentText().value_or("nothing"));
          return owner.isTurnOver() && !result.empty() && result.back() == last;
        },
        foundation::Seconds(60)));
    return result;
  }

  [[nodiscard]] static std::vector<std::string> numbers(int count) {
    std::vector<std::string> result;
    for (int number = 1; number <= count; ++number)
      result.push_back(std::to_string(number));
    return result;
  }
};

}  // namespace

TEST_F(X11PasteboardQuickOwners, FiftyMillisecondsApartAreAllKeptInOrder) {
  HostileOwner owner(m_display.name());
  owner.ownInTurn(200, std::chrono::milliseconds(50), HostileOwner::Waiting::untilRead);

  EXPECT_EQ(texts(owner, "200"), numbers(200));
  EXPECT_LE(owner.middleStand(), std::chrono::milliseconds(60));
}

TEST_F(X11PasteboardQuickOwners, TwentyMillisecondsApartAreAllKeptInOrder) {
  HostileOwner owner(m_display.name());
  owner.ownInTurn(200, std::chrono::milliseconds(21), HostileOwner::Waiting::untilRead);

  EXPECT_EQ(texts(owner, "200"), numbers(200));
  EXPECT_LE(owner.middleStand(), std::chrono::milliseconds(30));
}

TEST_F(X11PasteboardQuickOwners, FiveMillisecondsApartTheLastOneIsKept) {
  HostileOwner owner(m_display.name());
  owner.ownInTurn(200, std::chrono::milliseconds(5), HostileOwner::Waiting::no);

  const auto kept = texts(owner, "200");

  ASSERT_FALSE(kept.empty());
  EXPECT_EQ(kept.back(), "200");
}

}  // namespace testsupport
