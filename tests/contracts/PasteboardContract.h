#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "Quillmonger/capture/Pasteboard.h"
#include "Quillmonger/capture/PasteboardTypes.h"

namespace testsupport {

/// What a pasteboard needs around it to be tested: another program that copies, and time that passes.
class PasteboardWorld {
 public:
  PasteboardWorld() = default;
  PasteboardWorld(const PasteboardWorld&) = delete;
  PasteboardWorld& operator=(const PasteboardWorld&) = delete;
  virtual ~PasteboardWorld() = default;

  [[nodiscard]] virtual quillmonger::Pasteboard& pasteboard() = 0;
  /// Another program copies plain text, and the text has stood for long enough to count.
  virtual void copyText(const std::string& text) = 0;
  /// Another program copies plain text and marks it as a secret.
  virtual void copySecret(const std::string& text) = 0;
  /// Lets the main queue run until the condition holds; false when it doesn't within a bound.
  [[nodiscard]] virtual bool runUntil(const std::function<bool()>& isDone) = 0;
};

/// The contract of `quillmonger::Pasteboard`, for every implementation and for the fake. `World` is a
/// `PasteboardWorld` that can be made without arguments.
template <typename World>
class PasteboardContract : public testing::Test {
 protected:
  [[nodiscard]] quillmonger::Pasteboard& pasteboard() { return m_world.pasteboard(); }
  [[nodiscard]] World& world() { return m_world; }

  // Polls, as the monitor does, until the next content is the present one.
  [[nodiscard]] bool advanceToNext() {
    const auto count = pasteboard().changeCount();
    return m_world.runUntil([this, count] {
      pasteboard().advance();
      return pasteboard().changeCount() != count;
    });
  }

  [[nodiscard]] std::string presentText() { return presentValue(quillmonger::pasteboardtype::utf8PlainText); }
  [[nodiscard]] std::string presentValue(std::string_view type) {
    const auto content = pasteboard().pasteboardItems();
    if (!content || content->items().empty()) return "no content";
    const auto data = content->items().front().dataForType(type);
    return data ? *data->bytes() : "no value";
  }

 private:
  World m_world;
};

TYPED_TEST_SUITE_P(PasteboardContract);

TYPED_TEST_P(PasteboardContract, HasNoContentAtFirst) {
  EXPECT_TRUE(this->pasteboard().types().empty());
  EXPECT_EQ(this->pasteboard().pasteboardItems(), nullptr);
}

TYPED_TEST_P(PasteboardContract, KeepsTheChangeCountWhenNothingWaits) {
  const auto count = this->pasteboard().changeCount();

  this->pasteboard().advance();

  EXPECT_EQ(this->pasteboard().changeCount(), count);
}

TYPED_TEST_P(PasteboardContract, ShowsACopyOnlyAfterAdvance) {
  const auto count = this->pasteboard().changeCount();
  this->world().copyText("first");
  EXPECT_EQ(this->pasteboard().changeCount(), count);

  ASSERT_TRUE(this->advanceToNext());

  EXPECT_EQ(this->presentText(), "first");
  EXPECT_EQ(std::ranges::count(this->pasteboard().types(), quillmonger::pasteboardtype::utf8PlainText), 1);
}

TYPED_TEST_P(PasteboardContract, TakesContentsThatWaitInTheirOrder) {
  this->world().copyText("first");
  this->world().copyText("second");

  ASSERT_TRUE(this->advanceToNext());
  EXPECT_EQ(this->presentText(), "first");
  const auto count = this->pasteboard().changeCount();
  ASSERT_TRUE(this->advanceToNext());
  EXPECT_EQ(this->presentText(), "second");
  EXPECT_NE(this->pasteboard().changeCount(), count);
}

TYPED_TEST_P(PasteboardContract, CountsTheSameTextAgainAsAChange) {
  this->world().copyText("same");
  ASSERT_TRUE(this->advanceToNext());

  this->world().copyText("same");

  EXPECT_TRUE(this->advanceToNext());
}

TYPED_TEST_P(PasteboardContract, TellsOnlyTheTypesOfARejectedCopy) {
  this->world().copySecret("hidden");

  ASSERT_TRUE(this->advanceToNext());

  EXPECT_EQ(this->pasteboard().pasteboardItems(), nullptr);
  EXPECT_EQ(std::ranges::count(this->pasteboard().types(), quillmonger::pasteboardtype::concealed), 1);
}

TYPED_TEST_P(PasteboardContract, ReadsWhatTheFilterAcceptsFromNowOn) {
  this->pasteboard().setTypeFilter({.ignoreSensitiveData = false});

  this->world().copySecret("shown");

  ASSERT_TRUE(this->advanceToNext());
  EXPECT_EQ(this->presentText(), "shown");
}

TYPED_TEST_P(PasteboardContract, GivesBackItsOwnWriteAsAContent) {
  this->pasteboard().clearContents();
  this->pasteboard().setString("", quillmonger::pasteboardtype::appMarker);
  this->pasteboard().setString("written", quillmonger::pasteboardtype::utf8PlainText);

  ASSERT_TRUE(this->advanceToNext());

  EXPECT_EQ(this->presentText(), "written");
  EXPECT_EQ(this->presentValue(quillmonger::pasteboardtype::appMarker), "");
}

TYPED_TEST_P(PasteboardContract, OffersAnAbsentValueWithoutBytes) {
  this->pasteboard().clearContents();
  this->pasteboard().setString("written", quillmonger::pasteboardtype::utf8PlainText);
  this->pasteboard().setData(std::nullopt, "public.html");

  ASSERT_TRUE(this->advanceToNext());

  EXPECT_EQ(std::ranges::count(this->pasteboard().types(), "public.html"), 1);
  EXPECT_EQ(this->presentValue("public.html"), "no value");
}

TYPED_TEST_P(PasteboardContract, ReplacesARepresentationThatIsSetAgain) {
  this->pasteboard().clearContents();
  this->pasteboard().setString("one", quillmonger::pasteboardtype::utf8PlainText);
  this->pasteboard().setString("two", quillmonger::pasteboardtype::utf8PlainText);

  ASSERT_TRUE(this->advanceToNext());

  EXPECT_EQ(this->presentText(), "two");
}

TYPED_TEST_P(PasteboardContract, WritesOnceForTwoContentsInOneTurn) {
  this->pasteboard().clearContents();
  this->pasteboard().setString("dropped", quillmonger::pasteboardtype::utf8PlainText);
  this->pasteboard().clearContents();
  this->pasteboard().setString("kept", quillmonger::pasteboardtype::utf8PlainText);

  ASSERT_TRUE(this->advanceToNext());

  EXPECT_EQ(this->presentText(), "kept");
}

REGISTER_TYPED_TEST_SUITE_P(PasteboardContract, HasNoContentAtFirst, KeepsTheChangeCountWhenNothingWaits,
                            ShowsACopyOnlyAfterAdvance, TakesContentsThatWaitInTheirOrder,
                            CountsTheSameTextAgainAsAChange, TellsOnlyTheTypesOfARejectedCopy,
                            ReadsWhatTheFilterAcceptsFromNowOn, GivesBackItsOwnWriteAsAContent,
                            OffersAnAbsentValueWithoutBytes, ReplacesARepresentationThatIsSetAgain,
                            WritesOnceForTwoContentsInOneTurn);

}  // namespace testsupport
